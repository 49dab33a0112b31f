#include "viewer/SoQtGeneralViewerFrame.h"

#include "viewer/Backdrop.h"
#include "viewer/DocumentScene.h"
#include "viewer/FrameOwner.h"
#include "viewer/Lights.h"
#include "viewer/ShaderPrograms.h"
#include "viewer/SoQtGeneralViewer.h"
#include "viewer/WindowTitleKeeper.h"

#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoEnvironment.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShaderProgram.h>
#include <QCloseEvent>
#include <QGLWidget>

namespace {

constexpr int smallestWidth = 400;
constexpr int smallestHeight = 300;
constexpr int samplesPerPixel = 4;

} // namespace

int SoQtGeneralViewerFrame::instances = 0;

SoQtGeneralViewerFrame::SoQtGeneralViewerFrame(bool closable, FrameOwner* owner)
    : id(instances)
    , title(QString("Viewer ") + QString("%1").arg(id))
    , closableAlone(closable)
    , type("SoQtExaminerViewerFrame")
    , mainWindow(owner) {
    ++instances;
    setMinimumSize(smallestWidth, smallestHeight);
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
}

SoQtGeneralViewerFrame::~SoQtGeneralViewerFrame() {
    // The viewer goes before the widgets that the frame holds, and the scene before the viewer.
    scene.reset();
    viewer.reset();
}

void SoQtGeneralViewerFrame::SetEventHandlers() {}

int SoQtGeneralViewerFrame::processSoEvent(const SoEvent* /*event*/) {
    return 0;
}

void SoQtGeneralViewerFrame::Draw() {}

void SoQtGeneralViewerFrame::reDraw() {}

void SoQtGeneralViewerFrame::initialize() {
    buildScene();
    SetEventHandlers();
    Draw();
    createViewer();
}

void SoQtGeneralViewerFrame::buildScene() {
    scene = std::make_unique<DocumentScene>();
    root = scene->getRoot();
    phongSeparator = scene->getPhongSeparator();
    drawStyleSeparator = scene->getDrawStyleSeparator();
}

void SoQtGeneralViewerFrame::createViewer() {
    const WindowTitleKeeper keeper(window());
    viewer = std::make_unique<SoQtGeneralViewer>(this, title.toLocal8Bit().constData(), 1);
    viewer->setSceneGraph(root);
    viewer->lightBothSides();
    viewer->keepSurfaceOf(*scene);
    viewer->setFeedbackVisibility(TRUE);
    enableMultisampling();
    viewer->show();
}

void SoQtGeneralViewerFrame::enableMultisampling() {
    auto* widget = static_cast<QGLWidget*>(viewer->getGLWidget());
    QGLFormat format = widget->format();
    format.setSampleBuffers(true);
    format.setSamples(samplesPerPixel);
    widget->setFormat(format);
    widget->makeCurrent();
    glEnable(GL_MULTISAMPLE);
}

void SoQtGeneralViewerFrame::setTitle(const char* text) {
    {
        const WindowTitleKeeper keeper(window());
        viewer->setTitle(text);
    }
    lastViewerTitle = QString::fromLocal8Bit(text);
    if (mainWindow != nullptr) {
        mainWindow->viewerTitleChanged();
    }
}

QSize SoQtGeneralViewerFrame::minimumSize() const {
    return {smallestWidth, smallestHeight};
}

void SoQtGeneralViewerFrame::toggleDrawStyle() {
    scene->toggleDrawStyle();
}

void SoQtGeneralViewerFrame::removeSceneChild(SbName name, SoSeparator* parent) {
    DocumentScene::removeChild(name, *parent);
}

SoDirectionalLight* SoQtGeneralViewerFrame::createDirectionalLight(float intensity,
                                                                   SbVec3f direction) {
    return Lights::createDirectionalLight(intensity, direction);
}

SoEnvironment* SoQtGeneralViewerFrame::createEnvironment(float ambient) {
    return Lights::createEnvironment(ambient);
}

SoShaderProgram* SoQtGeneralViewerFrame::createShaderProgram(const char* vertexPath,
                                                             const char* fragmentPath) {
    return ShaderPrograms::create(vertexPath, fragmentPath);
}

void SoQtGeneralViewerFrame::setBackground() {
    root->addChild(Backdrop::create());
}

void SoQtGeneralViewerFrame::closeEvent(QCloseEvent* event) {
    event->setAccepted(closableAlone);
}
