#include "viewer/OffscreenContexts.h"

#include "viewer/CurrentContext.h"
#include "viewer/OffscreenCallbacks.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <memory>

namespace {

/** One off-screen context with the framebuffer that it draws into. */
class OffscreenContext : public OffscreenCallbacks::EmptyCoinRecord {
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
    QOpenGLContext context;
    QOffscreenSurface surface;
    std::unique_ptr<QOpenGLFramebufferObject> framebuffer;
    CurrentContext previous;
};

} // namespace

void OffscreenContexts::install() {
    OffscreenCallbacks::install<OffscreenContext>();
}
