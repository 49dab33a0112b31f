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
    SbXfBox3f& box = action->getXfBoundingBox();
    const SbXfBox3f around = box;
    box.makeEmpty();
    SoSeparator::getBoundingBox(action);
    const SbBox3f contents = action->getBoundingBox();
    box = around;
    const bool finiteCentre = !action->isCenterSet() || isFinite(action->getCenter());
    if (!isFinite(contents) || !finiteCentre) {
        action->resetCenter();
    } else if (!contents.isEmpty()) {
        // As a box of the coordinates outside: the library would carry the whole into those inside.
        box.extendBy(contents);
    }
}

void FiniteSeparator::rayPick(SoRayPickAction* action) {
    SoGetBoundingBoxAction contents(action->getViewportRegion());
    contents.apply(this);
    if (!contents.getBoundingBox().isEmpty()) {
        SoSeparator::rayPick(action);
    }
}
