#include "tests/viewer/ShownFrame.h"

#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoEnvironment.h>
#include <Inventor/nodes/SoFont.h>
#include <Inventor/nodes/SoFragmentShader.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoUnits.h>
#include <Inventor/nodes/SoVertexShader.h>
#include <QGLWidget>
#include <QPointer>
#include <QResource>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

std::string resource(const char* path) {
    const QResource entry{QString(path)};
    return {reinterpret_cast<const char*>(entry.data()), static_cast<std::size_t>(entry.size())};
}

template <typename Shader>
void expectShader(SoShaderProgram* program, int position, const char* path) {
    auto* shader = dynamic_cast<Shader*>(program->shaderObject[position]);
    ASSERT_NE(shader, nullptr);
    EXPECT_EQ(shader->sourceType.getValue(), SoShaderObject::GLSL_PROGRAM);
    EXPECT_FALSE(resource(path).empty());
    EXPECT_EQ(std::string(shader->sourceProgram.getValue().getString()), resource(path));
}

template <typename Node>
Node* child(SoGroup* group, int position) {
    return position < group->getNumChildren() ? dynamic_cast<Node*>(group->getChild(position))
                                              : nullptr;
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

TEST(GeneralViewerFrame, BaseOperationsDoNothing) {
    SoQtGeneralViewerFrame frame(true, nullptr);
    frame.initialize();
    const int children = frame.getSceneRoot()->getNumChildren();
    const SoKeyboardEvent event;
    EXPECT_EQ(frame.processSoEvent(&event), 0);
    frame.SetEventHandlers();
    frame.Draw();
    frame.reDraw();
    EXPECT_EQ(frame.getSceneRoot()->getNumChildren(), children);
}

TEST(GeneralViewerFrame, SceneHasItsUpperStructureInOrder) {
    ShownFrame frame;
    frame.initialize();
    SoSeparator* root = frame.getSceneRoot();
    ASSERT_EQ(root->getNumChildren(), 4);
    auto* environment = child<SoEnvironment>(root, 0);
    ASSERT_NE(environment, nullptr);
    EXPECT_EQ(environment->ambientIntensity.getValue(), 0.2F);
    EXPECT_EQ(environment->ambientColor.getValue(), SbColor(1, 1, 1));
    EXPECT_EQ(root->getChild(1), frame.solidBranch());
    EXPECT_EQ(root->getChild(2), frame.phongBranch());
    EXPECT_EQ(root->getChild(3), frame.drawStyleBranch());

    EXPECT_EQ(frame.solidBranch()->getChild(0), frame.solid());
    EXPECT_EQ(frame.phongBranch()->getChild(0), frame.phong());
    EXPECT_EQ(frame.drawStyleBranch()->getChild(0), &frame.style());
    EXPECT_EQ(frame.drawStyleBranch()->getChild(1), &frame.shading());
    EXPECT_EQ(frame.style().lineWidth.getValue(), 0.125F);
    EXPECT_EQ(frame.style().style.getValue(), SoDrawStyle::FILLED);
    EXPECT_TRUE(frame.style().pointSize.isDefault());
    EXPECT_TRUE(frame.style().linePattern.isDefault());
    ASSERT_EQ(frame.shading().getNumChildren(), 2);
    EXPECT_EQ(frame.shading().whichChild.getValue(), 0);
    EXPECT_EQ(frame.shading().getChild(0), frame.phong());
    EXPECT_EQ(frame.shading().getChild(1), frame.solid());
}

TEST(GeneralViewerFrame, ProgramsHoldTheExactTextsOfTheResources) {
    ShownFrame frame;
    frame.initialize();
    ASSERT_EQ(frame.phong()->shaderObject.getNum(), 2);
    ASSERT_EQ(frame.solid()->shaderObject.getNum(), 2);
    expectShader<SoVertexShader>(frame.phong(), 0, ":/phong.vert.glsl");
    expectShader<SoFragmentShader>(frame.phong(), 1, ":/phong.frag.glsl");
    expectShader<SoVertexShader>(frame.solid(), 0, ":/solid.vert.glsl");
    expectShader<SoFragmentShader>(frame.solid(), 1, ":/solid.frag.glsl");
}

TEST(GeneralViewerFrame, MissingShaderResourceIsEmptyText) {
    ShownFrame frame;
    const NodePointer<SoShaderProgram> program(
        frame.createShaderProgram(":/absent.vert.glsl", ":/absent.frag.glsl"));
    auto* shader = dynamic_cast<SoVertexShader*>(program->shaderObject[0]);
    ASSERT_NE(shader, nullptr);
    EXPECT_EQ(shader->sourceProgram.getValue().getLength(), 0);
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
    EXPECT_EQ(viewer.getHeadlight()->direction.getValue(),
              bare.getHeadlight()->direction.getValue());
    EXPECT_EQ(viewer.getHeadlight()->intensity.getValue(),
              bare.getHeadlight()->intensity.getValue());
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

TEST(GeneralViewerFrame, RemovesADirectChildByName) {
    ShownFrame frame;
    const NodePointer<SoSeparator> parent(new SoSeparator);
    parent->addChild(SceneNodes::createSeparator("first"));
    parent->addChild(SceneNodes::createSeparator("second"));
    frame.removeSceneChild("first", parent.get());
    ASSERT_EQ(parent->getNumChildren(), 1);
    EXPECT_EQ(parent->getChild(0)->getName(), SbName("second"));
}

TEST(GeneralViewerFrame, RemovesOnlyTheFirstOfSeveralChildrenOfOneName) {
    ShownFrame frame;
    const NodePointer<SoSeparator> parent(new SoSeparator);
    parent->addChild(SceneNodes::createSeparator("twice"));
    SoSeparator* second = SceneNodes::createSeparator("twice");
    parent->addChild(second);
    frame.removeSceneChild("twice", parent.get());
    ASSERT_EQ(parent->getNumChildren(), 1);
    EXPECT_EQ(parent->getChild(0), second);
}

TEST(GeneralViewerFrame, RemovingLeavesGrandchildrenTheParentAndUnknownNamesAlone) {
    ShownFrame frame;
    const NodePointer<SoSeparator> parent(SceneNodes::createSeparator("parent"));
    SoSeparator* middle = SceneNodes::createSeparator("middle");
    middle->addChild(SceneNodes::createSeparator("deep"));
    parent->addChild(middle);
    for (const char* name : {"deep", "parent", "unknown"}) {
        frame.removeSceneChild(name, parent.get());
        EXPECT_EQ(parent->getNumChildren(), 1);
        EXPECT_EQ(middle->getNumChildren(), 1);
    }
}

TEST(GeneralViewerFrame, MakesWhiteLights) {
    ShownFrame frame;
    const NodePointer<SoDirectionalLight> light(
        frame.createDirectionalLight(0.5F, SbVec3f(1, 2, 3)));
    EXPECT_EQ(light->intensity.getValue(), 0.5F);
    EXPECT_EQ(light->direction.getValue(), SbVec3f(1, 2, 3));
    EXPECT_EQ(light->color.getValue(), SbColor(1, 1, 1));
}

TEST(GeneralViewerFrame, BackgroundIsAGreetingUnderItsOwnCamera) {
    ShownFrame frame;
    frame.initialize();
    frame.setBackground();
    auto* background = child<SoSeparator>(frame.getSceneRoot(), 4);
    ASSERT_NE(background, nullptr);
    EXPECT_EQ(background->getName(), SbName("Background"));
    ASSERT_EQ(background->getNumChildren(), 7);
    auto* camera = child<SoOrthographicCamera>(background, 0);
    ASSERT_NE(camera, nullptr);
    EXPECT_EQ(camera->position.getValue(), SbVec3f(0, 0, 1));
    EXPECT_EQ(camera->nearDistance.getValue(), 0.5F);
    EXPECT_EQ(camera->farDistance.getValue(), 1.5F);
    EXPECT_EQ(camera->height.getValue(), 10);
    ASSERT_NE(child<SoUnits>(background, 1), nullptr);
    EXPECT_EQ(child<SoUnits>(background, 1)->units.getValue(), SoUnits::POINTS);
    ASSERT_NE(child<SoTransform>(background, 2), nullptr);
    EXPECT_EQ(child<SoTransform>(background, 2)->translation.getValue(), SbVec3f(-12000, 8000, 0));
    ASSERT_NE(child<SoUnits>(background, 3), nullptr);
    EXPECT_EQ(child<SoUnits>(background, 3)->units.getValue(), SoUnits::METERS);
    ASSERT_NE(child<SoMaterial>(background, 4), nullptr);
    EXPECT_EQ(child<SoMaterial>(background, 4)->diffuseColor[0], SbColor(1, 0, 0));
    ASSERT_NE(child<SoFont>(background, 5), nullptr);
    EXPECT_EQ(child<SoFont>(background, 5)->name.getValue(), SbName("Times-Roman"));
    EXPECT_EQ(child<SoFont>(background, 5)->size.getValue(), 0.5F);
    ASSERT_NE(child<SoText3>(background, 6), nullptr);
    EXPECT_EQ(child<SoText3>(background, 6)->string[0], SbString("Ciao"));
}
