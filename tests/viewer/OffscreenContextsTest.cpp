#include "viewer/OffscreenContexts.h"
#include "tests/viewer/ShownFrame.h"

#include <Inventor/SoOffscreenRenderer.h>
#include <QGLWidget>
#include <QOpenGLContext>

TEST(OffscreenContextsTest, EachDrawingLeavesTheContextCurrentThatWasSo) {
    OffscreenContexts::install();
    const FrameOnScreen first;
    const FrameOnScreen second;
    SoOffscreenRenderer renderer(SbViewportRegion(61, 47));
    for (const FrameOnScreen* shown : {&first, &second, &first}) {
        auto& view = dynamic_cast<QGLWidget&>(shown->driver().widget());
        view.makeCurrent();
        EXPECT_TRUE(renderer.render(first.get().getSceneRoot()));
        EXPECT_EQ(QOpenGLContext::currentContext(), view.context()->contextHandle());
    }
}

TEST(OffscreenContextsTest, LeaveTheContextCurrentThatWasSoWhenTheyGo) {
    OffscreenContexts::install();
    const FrameOnScreen shown;
    auto& view = dynamic_cast<QGLWidget&>(shown.driver().widget());
    view.makeCurrent();
    {
        SoOffscreenRenderer renderer(SbViewportRegion(61, 47));
        EXPECT_TRUE(renderer.render(shown.get().getSceneRoot()));
    }
    EXPECT_EQ(QOpenGLContext::currentContext(), view.context()->contextHandle());
}
