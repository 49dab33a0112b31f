#pragma once

#include <Inventor/nodes/SoSeparator.h>

/**
 * A separator that keeps points that are nowhere (NaN, infinite) away from the rest of the scene:
 * while the box around its contents is not finite, it adds nothing to bounding boxes and is never
 * picked. Drawing it is left to OpenGL, which shows no primitive with such a point.
 *
 * Without it one such point makes the bounding box of the whole scene NaN. The viewer takes the
 * camera's clipping planes from that box at every redraw, and its position and height when the user
 * asks to see everything: nothing is then seen, not even when the points have become finite again.
 * The library also takes every ray for a hit of a triangle that is not finite.
 *
 * What is only moved into its place, as a sphere is, is bounded in the coordinates of the place:
 * the box around a scene does not change by roundings when something moves within it, nor do the
 * camera's clipping planes.
 *
 * It has no type of its own in the scene library, on purpose: getTypeId() is SoSeparator's.
 */
class FiniteSeparator : public SoSeparator {
public:
    FiniteSeparator() = default;
    FiniteSeparator(const FiniteSeparator&) = delete;
    FiniteSeparator& operator=(const FiniteSeparator&) = delete;

    void getBoundingBox(SoGetBoundingBoxAction* action) override;
    void rayPick(SoRayPickAction* action) override;

protected:
    ~FiniteSeparator() override = default;
};
