#include "viewer/OffscreenContexts.h"

#include "viewer/CurrentContext.h"

#include <Inventor/C/glue/gl.h>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <array>
#include <cstddef>
#include <memory>

namespace {

/** One off-screen context with the framebuffer that it draws into. */
class OffscreenContext {
public:
    static std::unique_ptr<OffscreenContext> create(int width, int height) {
        auto created = std::make_unique<OffscreenContext>();
        created->surface.create();
        if (!created->context.create() || !created->makeCurrent()) {
            return nullptr;
        }
        created->framebuffer = std::make_unique<QOpenGLFramebufferObject>(
            width, height, QOpenGLFramebufferObject::CombinedDepthStencil);
        const bool complete = created->framebuffer->isValid();
        created->reinstatePrevious();
        return complete ? std::move(created) : nullptr;
    }

    OffscreenContext() = default;
    OffscreenContext(const OffscreenContext&) = delete;
    OffscreenContext& operator=(const OffscreenContext&) = delete;

    ~OffscreenContext() {
        // The framebuffer can be freed in its own context only.
        if (framebuffer && makeCurrent()) {
            framebuffer.reset();
            reinstatePrevious();
        }
    }

    /** On failure the previous context is current again: nobody reinstates it then. */
    bool makeCurrent() {
        previous = CurrentContext();
        if (context.makeCurrent(&surface) && (!framebuffer || framebuffer->bind())) {
            return true;
        }
        reinstatePrevious();
        return false;
    }

    void reinstatePrevious() { previous.reinstate(context); }

private:
    static constexpr std::size_t coinRecordSize = 128;

    /**
     * Coin 4.0 hands this object to its own GLX code when it asks for the largest size, and reads
     * it as its private record; zeros stand for a record without pixel buffer, which is harmless.
     */
    std::array<std::byte, coinRecordSize> emptyCoinRecord{};
    QOpenGLContext context;
    QOffscreenSurface surface;
    std::unique_ptr<QOpenGLFramebufferObject> framebuffer;
    CurrentContext previous;
};

cc_glglue_offscreen_data createOffscreen(unsigned int width, unsigned int height) {
    return OffscreenContext::create(static_cast<int>(width), static_cast<int>(height)).release();
}

SbBool makeCurrent(cc_glglue_offscreen_data context) {
    return static_cast<OffscreenContext*>(context)->makeCurrent() ? TRUE : FALSE;
}

void reinstatePrevious(cc_glglue_offscreen_data context) {
    static_cast<OffscreenContext*>(context)->reinstatePrevious();
}

void destruct(cc_glglue_offscreen_data context) {
    const std::unique_ptr<OffscreenContext> owned(static_cast<OffscreenContext*>(context));
}

} // namespace

void OffscreenContexts::install() {
    static cc_glglue_offscreen_cb_functions functions{createOffscreen, makeCurrent,
                                                      reinstatePrevious, destruct};
    cc_glglue_context_set_offscreen_cb_functions(&functions);
}
