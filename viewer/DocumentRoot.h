#pragma once

#include <Inventor/nodes/SoSeparator.h>
#include <functional>

/**
 * The root of a document's scene: a separator that can also draw the surface, one of its children,
 * before what stands in front of it in the scene, so that the picture of the surface alone can be
 * kept from one frame to the next.
 *
 * The frame is the same to the last bit, as long as all is opaque and nothing touches the far
 * plane. The order of drawing decides only between fragments of exactly the same depth, where the
 * later one is seen. What the scene has before the surface and is drawn after it is therefore drawn
 * twice: first where it is nearer than all before, which settles the depth and marks the samples
 * that are not the surface's, then where it is as near, and only on the marked samples, which
 * settles who is seen among its own.
 *
 * It has no type of its own in the scene library, on purpose: getTypeId() is SoSeparator's.
 */
class DocumentRoot : public SoSeparator {
public:
    using DrawSurface = std::function<void()>;
    /**
     * Brings the surface, and nothing else of the scene, into the framebuffer that is being drawn
     * into, with the given function or from what it has kept. False when it has done nothing; the
     * scene is then drawn in its own order. The framebuffer has a stencil where it returns true.
     */
    using SurfaceSource = std::function<bool(SoGLRenderAction&, const DrawSurface&)>;

    DocumentRoot() = default;
    DocumentRoot(const DocumentRoot&) = delete;
    DocumentRoot& operator=(const DocumentRoot&) = delete;

    /**
     * Gives the surface a source, or takes it away (null).
     *
     * @param surface a child; those before it are separators or draw nothing themselves
     */
    void setSurfaceSource(const SoNode* surface, SurfaceSource source);

    void GLRenderBelowPath(SoGLRenderAction* action) override;

protected:
    ~DocumentRoot() override = default;

private:
    void drawSurface(SoGLRenderAction* action, int surfaceIndex);
    void drawAroundSurface(SoGLRenderAction* action, int surfaceIndex);
    /** Draws a child as if it had been drawn before the surface. */
    void drawAsIfBefore(SoGLRenderAction* action, int index);
    bool isSeparator(int index) const;

    const SoNode* surface = nullptr;
    SurfaceSource surfaceSource;
};
