#pragma once

#include <Inventor/SbVec2f.h>

class SoQtViewer;

/**
 * Leaves a viewer's clipping planes where they are, unless the scene really calls for others.
 *
 * The library computes the box around the scene, and from it the planes, anew for every frame, and
 * something that moves within the box, far from its sides, can move the result by a rounding. With
 * the planes everything on the screen would be another picture, the same to the eye.
 */
class SteadyClipping {
public:
    SteadyClipping() = default;
    ~SteadyClipping() = default;
    SteadyClipping(const SteadyClipping&) = delete;
    SteadyClipping& operator=(const SteadyClipping&) = delete;

    /** Steadies the planes of a viewer, which does not outlive this object. */
    void install(SoQtViewer& viewer);

    /** The planes for a scene that calls for these: (near, far), in the scene's lengths. */
    SbVec2f planesFor(const SbVec2f& wanted);

private:
    SbVec2f planes{0, 0};
};
