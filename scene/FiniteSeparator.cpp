#include "scene/FiniteSeparator.h"

#include "scene/Finite.h"

#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>

namespace {

bool isFinite(const SbBox3f& box) {
    return isFinite(box.getMin()) && isFinite(box.getMax());
}

/** Whether a transformation only moves what it is applied to. */
bool onlyMoves(const SbMatrix& transform) {
    SbMatrix unmoved = transform;
    for (int axis = 0; axis < 3; ++axis) {
        unmoved[3][axis] = 0;
    }
    return unmoved == SbMatrix::identity();
}

/**
 * Extends a box by another, which is put into its place first where it has only been moved. The
 * library would sometimes give their common box in the place's coordinates, with other roundings
 * for every place.
 */
void extend(SbXfBox3f& box, const SbXfBox3f& other) {
    if (!other.isEmpty() && onlyMoves(other.getTransform())) {
        box.extendBy(other.project());
    } else {
        box.extendBy(other);
    }
}

} // namespace

void FiniteSeparator::getBoundingBox(SoGetBoundingBoxAction* action) {
    SbXfBox3f& box = action->getXfBoundingBox();
    const SbXfBox3f withoutContents = box;
    box.makeEmpty();
    SoSeparator::getBoundingBox(action);
    const SbXfBox3f contents = box;
    box = withoutContents;
    extend(box, contents);
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
