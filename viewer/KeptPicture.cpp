#include "viewer/KeptPicture.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFunctions>
#include <array>

namespace {

GLint number(GLenum name) {
    GLint value = 0;
    QOpenGLContext::currentContext()->functions()->glGetIntegerv(name, &value);
    return value;
}

/** Bits of red, green, blue, alpha, depth and stencil, and the number of samples. */
using Format = std::array<GLint, 7>;
constexpr std::size_t alphaBits = 3;
constexpr std::size_t sampleCount = 6;

/** The format of the framebuffer that is bound. */
Format boundFormat() {
    // These names went out of OpenGL's core, and so out of some headers.
    constexpr GLenum firstColorBits = 0x0D52;
    constexpr GLenum depthBits = 0x0D56;
    constexpr GLenum stencilBits = 0x0D57;
    return {number(firstColorBits),     number(firstColorBits + 1), number(firstColorBits + 2),
            number(firstColorBits + 3), number(depthBits),          number(stencilBits),
            number(GL_SAMPLES)};
}

QOpenGLFramebufferObjectFormat roomFormat(const Format& windowFormat) {
    QOpenGLFramebufferObjectFormat format;
    format.setSamples(windowFormat[sampleCount]);
    format.setAttachment(QOpenGLFramebufferObject::CombinedDepthStencil);
    format.setInternalTextureFormat(windowFormat[alphaBits] > 0 ? GL_RGBA8 : GL_RGB8);
    return format;
}

/** Whether this OpenGL copies framebuffers, and tells where their samples lie. */
bool hasFunctions() {
    const QOpenGLContext& context = *QOpenGLContext::currentContext();
    const bool tellsPlaces = context.format().version() >= qMakePair(3, 2) ||
                             context.hasExtension("GL_ARB_texture_multisample");
    return tellsPlaces && QOpenGLFramebufferObject::hasOpenGLFramebufferBlit();
}

/** How high the first sample of a pixel of the bound framebuffer stands in it, 0 to 1. */
GLfloat heightOfFirstSample() {
    std::array<GLfloat, 2> place{};
    QOpenGLContext::currentContext()->extraFunctions()->glGetMultisamplefv(GL_SAMPLE_POSITION, 0,
                                                                           place.data());
    return place[1];
}

} // namespace

bool KeptPicture::prepare(QSize size) {
    if (room && context == QOpenGLContext::currentContext() && room->size() == size) {
        return true;
    }
    drop();
    if (!hasFunctions() || number(GL_SAMPLES) == 0) {
        return false;
    }
    const Format windowFormat = boundFormat();
    const GLfloat heightInWindow = heightOfFirstSample();
    room = std::make_unique<QOpenGLFramebufferObject>(size, roomFormat(windowFormat));
    context = QOpenGLContext::currentContext();
    if (!room->isValid() || !room->bind()) {
        drop();
        return false;
    }
    const bool isAlike = boundFormat() == windowFormat;
    isMirrored = heightOfFirstSample() != heightInWindow;
    room->release();
    if (!isAlike) {
        drop();
    }
    return isAlike;
}

bool KeptPicture::take() {
    QOpenGLFunctions& gl = *context->functions();
    // Somebody else's error is not one of the copy.
    gl.glGetError();
    copy(context->defaultFramebufferObject(), room->handle());
    isFilled = gl.glGetError() == GL_NO_ERROR;
    return isFilled;
}

bool KeptPicture::isTaken() const {
    return isFilled && context == QOpenGLContext::currentContext();
}

void KeptPicture::putBack() const {
    copy(room->handle(), context->defaultFramebufferObject());
}

void KeptPicture::drop() {
    room.reset();
    context = nullptr;
    isFilled = false;
}

void KeptPicture::copy(GLuint from, GLuint to) const {
    QOpenGLExtraFunctions& gl = *QOpenGLContext::currentContext()->extraFunctions();
    const int width = room->width();
    const int height = room->height();
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, from);
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, to);
    // Windows may lie in memory from the top down, framebuffer objects lie from the bottom up.
    // Copied upside down, rows and samples stay as they are; turned over, the depth would be
    // rounded.
    // Depth and stencil lie together in memory, and are copied at once where both are wanted.
    gl.glBlitFramebuffer(
        0, 0, width, height, 0, isMirrored ? height : 0, width, isMirrored ? 0 : height,
        GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT, GL_NEAREST);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, context->defaultFramebufferObject());
}
