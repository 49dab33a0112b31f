#include "viewer/SurfacelessContexts.h"

#include "viewer/OffscreenCallbacks.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GL/gl.h>
#include <GL/glext.h>

#include <array>
#include <iomanip>
#include <memory>
#include <sstream>

namespace {

/** EGL without a window system, and what contexts are made for. */
struct Platform {
    EGLDisplay display = EGL_NO_DISPLAY;
    EGLConfig config = nullptr;
};

/** The platform of this process, once it has been opened. */
Platform& platform() {
    static Platform opened;
    return opened;
}

EGLContext createContext() {
    const Platform& on = platform();
    return eglCreateContext(on.display, on.config, EGL_NO_CONTEXT, nullptr);
}

bool bind(EGLContext context) {
    return eglMakeCurrent(platform().display, EGL_NO_SURFACE, EGL_NO_SURFACE, context) == EGL_TRUE;
}

/** One context with the framebuffer that it draws into. */
class SurfacelessContext : public OffscreenCallbacks::EmptyCoinRecord {
public:
    static std::unique_ptr<SurfacelessContext> create(int width, int height) {
        auto created = std::make_unique<SurfacelessContext>();
        if (created->context == EGL_NO_CONTEXT || !created->makeCurrent()) {
            return nullptr;
        }
        const bool complete = created->createFramebuffer(width, height);
        created->reinstatePrevious();
        return complete ? std::move(created) : nullptr;
    }

    SurfacelessContext()
        : context(createContext()) {}
    SurfacelessContext(const SurfacelessContext&) = delete;
    SurfacelessContext& operator=(const SurfacelessContext&) = delete;

    ~SurfacelessContext() {
        if (context == EGL_NO_CONTEXT) {
            return;
        }
        // What was made in a context can be freed in it only.
        if (makeCurrent()) {
            glDeleteFramebuffers(1, &framebuffer);
            glDeleteRenderbuffers(static_cast<GLsizei>(buffers.size()), buffers.data());
            reinstatePrevious();
        }
        eglDestroyContext(platform().display, context);
    }

    bool makeCurrent() {
        previous = eglGetCurrentContext();
        if (!bind(context)) {
            return false;
        }
        if (framebuffer != 0) {
            glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
        }
        return true;
    }

    void reinstatePrevious() { static_cast<void>(bind(previous)); }

private:
    /** In the current context; whether it can be drawn into. */
    bool createFramebuffer(int width, int height) {
        glGenRenderbuffers(static_cast<GLsizei>(buffers.size()), buffers.data());
        glGenFramebuffers(1, &framebuffer);
        glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
        attach(buffers[0], GL_RGBA8, GL_COLOR_ATTACHMENT0, width, height);
        attach(buffers[1], GL_DEPTH24_STENCIL8, GL_DEPTH_STENCIL_ATTACHMENT, width, height);
        return glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    }

    static void attach(GLuint buffer, GLenum format, GLenum attachment, int width, int height) {
        glBindRenderbuffer(GL_RENDERBUFFER, buffer);
        glRenderbufferStorage(GL_RENDERBUFFER, format, width, height);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, attachment, GL_RENDERBUFFER, buffer);
    }

    EGLContext context;
    EGLContext previous = EGL_NO_CONTEXT;
    GLuint framebuffer = 0;
    /** Colour; depth and stencil. */
    std::array<GLuint, 2> buffers{};
};

std::string failure(const char* what) {
    std::ostringstream text;
    text << what << " fails with EGL error 0x" << std::hex << eglGetError();
    return text.str();
}

/** Opens the platform; returns why it cannot be opened. */
std::string open(Platform& opened) {
    const auto getPlatformDisplay = reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(
        eglGetProcAddress("eglGetPlatformDisplayEXT"));
    if (getPlatformDisplay == nullptr) {
        return "EGL knows no platforms";
    }
    opened.display =
        getPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
    if (opened.display == EGL_NO_DISPLAY ||
        eglInitialize(opened.display, nullptr, nullptr) != EGL_TRUE) {
        return failure("opening the platform");
    }
    constexpr std::array<EGLint, 5> wanted{EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE,
                                           EGL_OPENGL_BIT, EGL_NONE};
    EGLint count = 0;
    if (eglBindAPI(EGL_OPENGL_API) != EGL_TRUE ||
        eglChooseConfig(opened.display, wanted.data(), &opened.config, 1, &count) != EGL_TRUE ||
        count == 0) {
        return failure("choosing a configuration");
    }
    return {};
}

/** Whether anything can be drawn at all is known only when it is tried. */
std::string tryOut() {
    return SurfacelessContext::create(1, 1) == nullptr ? failure("making a context")
                                                       : std::string();
}

} // namespace

std::string SurfacelessContexts::install() {
    std::string reason = open(platform());
    if (reason.empty()) {
        reason = tryOut();
    }
    if (reason.empty()) {
        OffscreenCallbacks::install<SurfacelessContext>();
    }
    return reason;
}
