// The scene library never again renders a picture in one piece after a context was refused: this
// check has a process of its own.

#include "tests/export/PrintedViews.h"
#include "viewer/OffscreenContexts.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/C/glue/gl.h>
#include <QFile>
#include <QOpenGLContext>
#include <QStatusBar>
#include <QSurfaceFormat>
#include <gtest/gtest.h>

namespace {

/** As long as it lives, no driver gives new OpenGL contexts: they are to be of another kind. */
class RefusedContexts {
public:
    RefusedContexts() {
        QSurfaceFormat format = usual;
        format.setRenderableType(QSurfaceFormat::OpenVG);
        QSurfaceFormat::setDefaultFormat(format);
    }
    ~RefusedContexts() { QSurfaceFormat::setDefaultFormat(usual); }
    RefusedContexts(const RefusedContexts&) = delete;
    RefusedContexts& operator=(const RefusedContexts&) = delete;

private:
    const QSurfaceFormat usual = QSurfaceFormat::defaultFormat();
};

class RefusedContextsTest : public PrintedViews {};

} // namespace

TEST_F(RefusedContextsTest, PictureFailsWritesNothingAndTheViewsGoOn) {
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const RefusedContexts refused;
    testing::internal::CaptureStderr();
    EXPECT_EQ(save(u, path()), "ok? 0\n");
    const auto said = QString::fromStdString(testing::internal::GetCapturedStderr());
    const QString status = opened.window().statusBar()->currentMessage();
    EXPECT_EQ(status, "Not saved: " + path() + " (the view cannot be rendered)");
    EXPECT_TRUE(said.endsWith(status + "\n")) << "after the library's own words";
    EXPECT_FALSE(QFile::exists(path()));
    const QImage before = ViewDriver(u).grab();
    u.toggleDrawStyle();
    EXPECT_TRUE(waitUntil([&] { return ViewDriver(u).grab() != before; }));
    EXPECT_TRUE(ViewDriver(u).isDrawn());
}

TEST_F(RefusedContextsTest, CurrentContextStays) {
    opened.hyperboloid(Hyperboloid::USPACE).getViewer()->render();
    const QOpenGLContext* current = QOpenGLContext::currentContext();
    ASSERT_NE(current, nullptr);
    OffscreenContexts::install();
    const RefusedContexts refused;
    EXPECT_EQ(cc_glglue_context_create_offscreen(37, 41), nullptr);
    EXPECT_EQ(QOpenGLContext::currentContext(), current);
}
