#pragma once

#include "viewer/KeptPicture.h"
#include "viewer/SurfaceSight.h"

#include <functional>

class SoGLRenderAction;

/**
 * Shows a view's surface from a kept picture as long as it looks the same: a surface of many
 * triangles costs a software rasteriser a hundred times what copying its picture does.
 *
 * The picture is taken in the second frame in a row in which the surface looks the same, so that
 * frames that all differ, those of a turning camera, cost nothing on top.
 */
class SurfacePicture {
public:
    /**
     * As DocumentRoot::SurfaceSource, while a frame is drawn: brings the surface into the
     * framebuffer of the current context. False when there is no picture to be had: the surface
     * looks other than in the frame before, there is none, something in the scene is transparent,
     * or this OpenGL makes no exact copies.
     *
     * @param action  the action that draws, come to the root
     * @param surface a child of the root
     */
    bool show(SoGLRenderAction& action, const SoNode& surface,
              const std::function<void()>& drawSurface);

    /** Draws the next frame wholly, and the picture is taken anew. */
    void forget();

    /** Whether it has no memory to give back. */
    bool isEmpty() const { return picture.isEmpty(); }

    /** Gives the memory back, in the context that was drawn in. */
    void drop() { picture.drop(); }

private:
    KeptPicture picture;
    SurfaceSight sight;
    /** Whether no copy can be made of this sight. */
    bool isRefused = false;
};
