#include "scene/FiniteSeparator.h"

#include "scene/Finite.h"

#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>

namespace {

bool isFinite(const SbBox3f& box) {
    return isFinite(box.getMin()) && isFinite(box.getMax());
}

} // namespace

void FiniteSeparator::getBoundingBox(SoGetBoundingBoxAction* action) {
    const SbXfBox3f withoutContents = action->getXfBoundingBox();
    SoSeparator::getBoundingBox(action);
    // A box that swallows its undefined part still leaves an undefined centre.
    const bool finiteCentre = !action->isCenterSet() || isFinite(action->getCenter());
    if (!isFinite(action->getBoundingBox()) || !finiteCentre) {
        action->getXfBoundingBox() = withoutContents;
        action->resetCenter();
    }
}

void FiniteSeparator::rayPick(SoRayPickAction* action) {
    SoGetBoundingBoxAction contents(action->getViewportRegion());
    contents.apply(this);
    if (!contents.getBoundingBox().isEmpty()) {
        SoSeparator::rayPick(action);
    }
}
