#include "viewer/KeptPicture.h"

#include <QGLWidget>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QTest>
#include <gtest/gtest.h>

namespace {

const QSize size(217, 131);

/** A window with a format of its own, cleared in any colour. */
class ClearedWindow {
public:
    explicit ClearedWindow(const QGLFormat& format)
        : widget(format) {
        widget.resize(size);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
        widget.makeCurrent();
        functions().initializeOpenGLFunctions();
    }

    void clear(float red, float depth) {
        functions().glClearColor(red, 0.4F, 0.7F, 1);
        functions().glClearDepthf(depth);
        functions().glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    }

    /** Leaves an error behind that nobody has asked for yet. */
    void makeError() {
        constexpr GLenum nothing = 0xFFFF;
        functions().glEnable(nothing);
    }

    int number(GLenum name) {
        GLint value = 0;
        functions().glGetIntegerv(name, &value);
        return value;
    }

    QImage seen() { return widget.grabFrameBuffer(); }

private:
    QOpenGLFunctions& functions() const { return *QOpenGLContext::currentContext()->functions(); }

    QGLWidget widget;
};

QGLFormat formatOf(bool stencil, int samples) {
    QGLFormat format;
    format.setStencil(stencil);
    format.setSampleBuffers(samples > 0);
    format.setSamples(samples);
    return format;
}

} // namespace

TEST(KeptPicture, IsPutBackIntoTheWindowItWasTakenFrom) {
    ClearedWindow window(formatOf(true, 4));
    ASSERT_GT(window.number(GL_SAMPLES), 0);
    KeptPicture picture;
    EXPECT_TRUE(picture.isEmpty());
    ASSERT_TRUE(picture.prepare(size));
    EXPECT_FALSE(picture.isTaken());
    window.clear(0.8F, 0.3F);
    const QImage before = window.seen();
    ASSERT_TRUE(picture.take());
    EXPECT_TRUE(picture.isTaken());
    window.clear(0.1F, 1);
    EXPECT_NE(window.seen(), before);
    picture.putBack();
    EXPECT_EQ(window.seen(), before);
    picture.drop();
    EXPECT_FALSE(picture.isTaken());
    EXPECT_TRUE(picture.isEmpty());
}

TEST(KeptPicture, IsTakenThoughSomebodyElseHasMadeAnError) {
    ClearedWindow window(formatOf(true, 4));
    ASSERT_GT(window.number(GL_SAMPLES), 0);
    KeptPicture picture;
    ASSERT_TRUE(picture.prepare(size));
    window.makeError();
    EXPECT_TRUE(picture.take());
    EXPECT_TRUE(picture.isTaken());
}

TEST(KeptPicture, IsRefusedInAWindowOfAnotherFormat) {
    ClearedWindow window(formatOf(false, 4));
    ASSERT_EQ(window.number(GL_STENCIL_BITS), 0);
    ASSERT_GT(window.number(GL_SAMPLES), 0);
    KeptPicture picture;
    EXPECT_FALSE(picture.prepare(size));
    EXPECT_FALSE(picture.isTaken());
    EXPECT_TRUE(picture.isEmpty());
}

TEST(KeptPicture, IsRefusedWithoutSamples) {
    ClearedWindow window(formatOf(true, 0));
    ASSERT_EQ(window.number(GL_SAMPLES), 0);
    KeptPicture picture;
    EXPECT_FALSE(picture.prepare(size));
    EXPECT_TRUE(picture.isEmpty());
}
