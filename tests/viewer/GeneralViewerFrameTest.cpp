#include "tests/viewer/ShownFrame.h"
#include "viewer/SeenScene.h"

#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoShapeHints.h>
#include <QGLWidget>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

/** What lights a scene and looks at it, in the order in which it stands around the scene. */
std::vector<SoType> lightAndCamera(const SoGroup& around) {
    std::vector<SoType> kinds;
    for (int i = 0; i < around.getNumChildren(); ++i) {
        const SoNode& node = *around.getChild(i);
        for (const SoType kind : {SoShapeHints::getClassTypeId(), SoLight::getClassTypeId(),
                                  SoCamera::getClassTypeId()}) {
            if (node.isOfType(kind)) {
                kinds.push_back(kind);
            }
        }
    }
    return kinds;
}

} // namespace

TEST(GeneralViewerFrame, HasNeitherSceneNorViewerBeforeItIsInitialized) {
    const ShownFrame frame;
    EXPECT_EQ(frame.getSceneRoot(), nullptr);
    EXPECT_EQ(frame.getViewer(), nullptr);
    EXPECT_EQ(frame.viewerTitle(), QString());
    EXPECT_TRUE(frame.calls.empty());
}

TEST(GeneralViewerFrame, TakesTheNextNumberAndIsTitledByIt) {
    const int before = SoQtGeneralViewerFrame::instances;
    const SoQtGeneralViewerFrame first(true, nullptr);
    const SoQtGeneralViewerFrame second(false, nullptr);
    EXPECT_EQ(first.getId(), before);
    EXPECT_EQ(second.getId(), before + 1);
    EXPECT_EQ(SoQtGeneralViewerFrame::instances, before + 2);
    EXPECT_EQ(first.windowTitle(), QString("Viewer %1").arg(before));
}

TEST(GeneralViewerFrame, NumbersAreNotGivenBackWhenAFrameGoes) {
    int number = 0;
    {
        const SoQtGeneralViewerFrame frame(true, nullptr);
        number = frame.getId();
    }
    const SoQtGeneralViewerFrame next(true, nullptr);
    EXPECT_EQ(next.getId(), number + 1);
}

TEST(GeneralViewerFrame, IsOfTheBaseTypeAndOfFixedMinimumSize) {
    const SoQtGeneralViewerFrame frame(true, nullptr);
    EXPECT_EQ(frame.GetType(), "SoQtExaminerViewerFrame");
    EXPECT_EQ(frame.minimumSize(), QSize(400, 300));
    EXPECT_EQ(frame.QWidget::minimumSize(), QSize(400, 300));
    EXPECT_TRUE(frame.testAttribute(Qt::WA_DeleteOnClose));
    EXPECT_EQ(frame.parent(), nullptr);
}

TEST(GeneralViewerFrame, ShowsTheSceneOfADocument) {
    ShownFrame frame;
    frame.initialize();
    EXPECT_EQ(frame.getSceneRoot(), frame.documentScene().getRoot());
    EXPECT_EQ(frame.getViewer()->getSceneGraph(), frame.getSceneRoot());
    EXPECT_EQ(frame.phongBranch(), frame.documentScene().getPhongSeparator());
    EXPECT_EQ(frame.drawStyleBranch(), frame.documentScene().getDrawStyleSeparator());
}

TEST(GeneralViewerFrame, SceneIsSeenOnTheScreenUnderWhatAPictureOfItIsSeenUnder) {
    ShownFrame frame;
    frame.initialize();
    const SoQtGeneralViewer& viewer = *frame.getViewer();
    const NodePointer<SoSeparator> picture =
        SeenScene::around(frame.getSceneRoot(), viewer.getHeadlight(), viewer.getCamera());
    const auto& screen = dynamic_cast<SoGroup&>(*viewer.getSceneManager()->getSceneGraph());
    EXPECT_EQ(lightAndCamera(screen).size(), 3U);
    EXPECT_EQ(lightAndCamera(screen), lightAndCamera(*picture));
}

TEST(GeneralViewerFrame, DrawsItsSceneOnceBeforeTheViewerExists) {
    ShownFrame frame;
    frame.initialize();
    EXPECT_EQ(frame.calls, (std::vector<std::string>{"SetEventHandlers", "Draw without viewer"}));
}

TEST(GeneralViewerFrame, ViewerStartsOrthographicWithItsSettings) {
    ShownFrame frame;
    frame.initialize();
    SoQtGeneralViewer& viewer = *frame.getViewer();
    EXPECT_EQ(viewer.getCameraType(), SoOrthographicCamera::getClassTypeId());
    EXPECT_EQ(viewer.getSceneGraph(), frame.getSceneRoot());
    EXPECT_TRUE(viewer.isFeedbackVisible());
    EXPECT_FALSE(viewer.isPopupMenuEnabled());
    EXPECT_EQ(viewer.getDrawStyle(SoQtViewer::INTERACTIVE), SoQtViewer::VIEW_SAME_AS_STILL);
    EXPECT_TRUE(viewer.isHeadlight());
    EXPECT_TRUE(viewer.isDecoration());
    EXPECT_TRUE(viewer.isViewing());
    EXPECT_FALSE(viewer.isSeekMode());
    EXPECT_EQ(viewer.getParentWidget(), &frame);
    EXPECT_FALSE(viewer.isTopLevelShell());
}

TEST(GeneralViewerFrame, ViewerThatIsNotEmbeddedHasAWindowOfItsOwn) {
    ShownFrame frame;
    frame.initialize();
    const SoQtGeneralViewer own(&frame, "own", 0);
    EXPECT_TRUE(own.isTopLevelShell());
    EXPECT_NE(own.getParentWidget(), &frame);
}

TEST(GeneralViewerFrame, ViewerKeepsWhatABareExaminerHasOtherwise) {
    ShownFrame frame;
    frame.initialize();
    const SoQtGeneralViewer& viewer = *frame.getViewer();
    QWidget around;
    const SoQtExaminerViewer bare(&around);
    EXPECT_EQ(viewer.getBackgroundColor(), bare.getBackgroundColor());
    EXPECT_EQ(viewer.getBufferingType(), bare.getBufferingType());
    EXPECT_EQ(viewer.isDoubleBuffer(), bare.isDoubleBuffer());
    EXPECT_EQ(viewer.getStereoType(), bare.getStereoType());
    EXPECT_EQ(viewer.getTransparencyType(), bare.getTransparencyType());
    EXPECT_EQ(viewer.getDrawStyle(SoQtViewer::STILL), bare.getDrawStyle(SoQtViewer::STILL));
    EXPECT_EQ(viewer.isAnimationEnabled(), bare.isAnimationEnabled());
    EXPECT_EQ(viewer.isAutoRedraw(), bare.isAutoRedraw());
    EXPECT_EQ(viewer.isAutoClipping(), bare.isAutoClipping());
    EXPECT_EQ(viewer.isCursorEnabled(), bare.isCursorEnabled());
    EXPECT_EQ(viewer.isDetailSeek(), bare.isDetailSeek());
    EXPECT_EQ(viewer.getSeekTime(), bare.getSeekTime());
    EXPECT_EQ(viewer.getFeedbackSize(), bare.getFeedbackSize());
    EXPECT_EQ(viewer.getHeadlight()->direction.getValue(),
              bare.getHeadlight()->direction.getValue());
    EXPECT_EQ(viewer.getHeadlight()->intensity.getValue(),
              bare.getHeadlight()->intensity.getValue());
    EXPECT_EQ(viewer.getHeadlight()->color.getValue(), bare.getHeadlight()->color.getValue());
}

TEST(GeneralViewerFrame, ViewerIsNamedLikeItsFrame) {
    ShownFrame frame;
    const QString title = frame.windowTitle();
    frame.initialize();
    EXPECT_EQ(frame.getViewer()->getWidget()->objectName(), title);
}

TEST(GeneralViewerFrame, ViewIsDrawnWithFourSamplesAPixel) {
    const FrameOnScreen shown;
    auto& widget = dynamic_cast<QGLWidget&>(shown.driver().widget());
    EXPECT_TRUE(widget.format().sampleBuffers());
    EXPECT_EQ(widget.format().samples(), 4);
    widget.makeCurrent();
    EXPECT_TRUE(glIsEnabled(GL_MULTISAMPLE));
}

TEST(GeneralViewerFrame, ShowsItsSceneAfterEveryChangeOfSize) {
    const FrameOnScreen shown;
    for (const QSize size : {QSize(700, 600), QSize(420, 310), QSize(900, 400)}) {
        shown.get().resize(size);
        EXPECT_TRUE(waitUntil([&] {
            const SbVec2s pixels = shown.get().getViewer()->getViewportRegion().getWindowSize();
            return pixels[0] > size.width() - 120 && pixels[0] <= size.width();
        }));
        EXPECT_TRUE(waitUntil([&] { return shown.driver().isDrawn(); }));
    }
}

TEST(GeneralViewerFrame, TitleGoesToTheViewerAndWindowsKeepTheirs) {
    QWidget window;
    window.setWindowTitle("around");
    QVBoxLayout layout(&window);
    auto* frame = new ShownFrame;
    const QString title = frame->windowTitle();
    frame->initialize();
    EXPECT_EQ(frame->windowTitle(), title);
    frame->setTitle("without a parent");
    EXPECT_EQ(frame->windowTitle(), title);
    layout.addWidget(frame);
    frame->setTitle("In U Space");
    EXPECT_EQ(frame->viewerTitle(), "In U Space");
    EXPECT_EQ(frame->windowTitle(), title);
    EXPECT_EQ(window.windowTitle(), "around");
}

TEST(GeneralViewerFrame, TitleReachesTheViewerComponent) {
    QWidget window;
    window.setWindowTitle("around");
    QVBoxLayout layout(&window);
    auto* frame = new ShownFrame;
    layout.addWidget(frame);
    frame->initialize();
    // The component passes its title on to the window around, which is given its own again.
    const QSignalSpy titles(&window, &QWidget::windowTitleChanged);
    frame->setTitle("In U Space");
    EXPECT_EQ(titles, (QList<QVariantList>{{"In U Space"}, {"around"}}));
}

TEST(GeneralViewerFrame, RefusesToCloseUntilItMay) {
    QPointer<ShownFrame> frame = new ShownFrame(false);
    frame->initialize();
    frame->show();
    EXPECT_FALSE(frame->close());
    EXPECT_TRUE(frame->isVisible());
    frame->setClosableAlone(true);
    EXPECT_TRUE(frame->close());
    EXPECT_TRUE(waitUntil([&] { return frame.isNull(); }));
}

TEST(GeneralViewerFrame, DrawStylesCycleThroughPhongSolidAndLines) {
    ShownFrame frame;
    frame.initialize();
    frame.toggleDrawStyle();
    EXPECT_EQ(frame.shading().whichChild.getValue(), 1);
    EXPECT_EQ(frame.style().style.getValue(), SoDrawStyle::FILLED);
    frame.toggleDrawStyle();
    EXPECT_EQ(frame.shading().whichChild.getValue(), 1);
    EXPECT_EQ(frame.style().style.getValue(), SoDrawStyle::LINES);
    frame.toggleDrawStyle();
    EXPECT_EQ(frame.shading().whichChild.getValue(), 0);
    EXPECT_EQ(frame.style().style.getValue(), SoDrawStyle::FILLED);
}
