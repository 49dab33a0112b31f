#pragma once

#include <Inventor/SbColor.h>
#include <Inventor/SbVec2s.h>
#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <cstdio>

class ByteTarget;
class SoNode;

/**
 * Draws pictures off the screen, one after the other, in one OpenGL context, and writes them.
 *
 * Off-screen contexts of the scene library must have been provided for.
 */
class PictureRenderer {
public:
    /** How large pictures are: in pixels, and how many of them make an inch. */
    struct Size {
        SbVec2s pixels;
        int dotsPerInch;
    };

    /** What is drawn in the same way in every picture; new, it is that of a new view. */
    struct Manner {
        SbColor background{0, 0, 0};
        SoGLRenderAction::TransparencyType transparency = SoGLRenderAction::BLEND;
    };

    PictureRenderer(const Size& size, const Manner& manner);

    /** Draws a picture of a graph that has its light and its camera; false if it cannot be drawn.
     */
    bool render(SoNode& picture);

    /**
     * Writes the picture that was drawn last to an open file as Encapsulated PostScript, with the
     * header that EpsHeader corrects; false, and nothing or a part is written, when it fails. The
     * decimal separator of the C library's locale does not matter.
     */
    bool writePostScript(std::FILE* file);

    /** Writes the picture that was drawn last as PNG; false when it fails, as above. */
    bool writePng(ByteTarget& target) const;

    /** What pictures are drawn into. */
    const SbViewportRegion& region() const { return renderer.getViewportRegion(); }

private:
    Size pictureSize;
    SoOffscreenRenderer renderer;
};
