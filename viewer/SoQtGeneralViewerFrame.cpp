#include "viewer/SoQtGeneralViewerFrame.h"

#include "viewer/FrameOwner.h"
#include "viewer/SoQtGeneralViewer.h"
#include "viewer/WindowTitleKeeper.h"

#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoEnvironment.h>
#include <Inventor/nodes/SoFont.h>
#include <Inventor/nodes/SoFragmentShader.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShaderProgram.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoUnits.h>
#include <Inventor/nodes/SoVertexShader.h>
#include <QCloseEvent>
#include <QGLWidget>
#include <QResource>

namespace {

constexpr int smallestWidth = 400;
constexpr int smallestHeight = 300;
constexpr int samplesPerPixel = 4;
constexpr float ambientIntensity = 0.2F;
constexpr float thinLine = 0.125F;

/** The children of shadingSwitch. */
constexpr int phongChild = 0;
constexpr int solidChild = 1;

/** The text of a resource with its exact length: resource data carries no terminating zero. */
QByteArray resourceText(const char* path) {
    const QResource resource{QString(path)};
    return {reinterpret_cast<const char*>(resource.data()), static_cast<int>(resource.size())};
}

void setSource(SoShaderObject& shader, const char* path) {
    shader.sourceType = SoShaderObject::GLSL_PROGRAM;
    shader.sourceProgram = resourceText(path).constData();
}

SoUnits* createUnits(SoUnits::Units value) {
    auto* units = new SoUnits;
    units->units = value;
    return units;
}

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
    root.reset();
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
    root = new SoSeparator;
    root->addChild(createEnvironment(ambientIntensity));
    phongProgram = createShaderProgram(":/phong.vert.glsl", ":/phong.frag.glsl");
    solidProgram = createShaderProgram(":/solid.vert.glsl", ":/solid.frag.glsl");
    drawStyle = new SoDrawStyle;
    drawStyle->lineWidth = thinLine;

    solidSeparator = new SoSeparator;
    solidSeparator->addChild(solidProgram);
    root->addChild(solidSeparator);

    phongSeparator = new SoSeparator;
    phongSeparator->addChild(phongProgram);
    root->addChild(phongSeparator);

    drawStyleSeparator = new SoSeparator;
    drawStyleSeparator->addChild(drawStyle);
    shadingSwitch = new SoSwitch;
    shadingSwitch->addChild(phongProgram);
    shadingSwitch->addChild(solidProgram);
    shadingSwitch->whichChild = phongChild;
    drawStyleSeparator->addChild(shadingSwitch);
    root->addChild(drawStyleSeparator);
}

void SoQtGeneralViewerFrame::createViewer() {
    const WindowTitleKeeper keeper(window());
    viewer = std::make_unique<SoQtGeneralViewer>(this, title.toLocal8Bit().constData(), 1);
    viewer->setSceneGraph(root.get());
    viewer->lightBothSides();
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
    switch (drawStyleState) {
    case 0:
        shadingSwitch->whichChild = solidChild;
        drawStyle->style = SoDrawStyle::FILLED;
        drawStyleState = 1;
        break;
    case 1:
        shadingSwitch->whichChild = solidChild;
        drawStyle->style = SoDrawStyle::LINES;
        drawStyleState = 2;
        break;
    default:
        shadingSwitch->whichChild = phongChild;
        drawStyle->style = SoDrawStyle::FILLED;
        drawStyleState = 0;
        break;
    }
}

void SoQtGeneralViewerFrame::removeSceneChild(SbName name, SoSeparator* parent) {
    SoSearchAction search;
    search.setName(name);
    search.setInterest(SoSearchAction::FIRST);
    search.apply(parent);
    if (search.getPath() == nullptr) {
        return;
    }
    const int child = parent->findChild(search.getPath()->getTail());
    if (child >= 0) {
        parent->removeChild(child);
    }
}

SoDirectionalLight* SoQtGeneralViewerFrame::createDirectionalLight(float intensity,
                                                                   SbVec3f direction) {
    auto* light = new SoDirectionalLight;
    light->direction = direction;
    light->intensity = intensity;
    light->color.setValue(1, 1, 1);
    return light;
}

SoEnvironment* SoQtGeneralViewerFrame::createEnvironment(float ambient) {
    auto* environment = new SoEnvironment;
    environment->ambientIntensity = ambient;
    environment->ambientColor.setValue(1, 1, 1);
    return environment;
}

SoShaderProgram* SoQtGeneralViewerFrame::createShaderProgram(const char* vertexPath,
                                                             const char* fragmentPath) {
    auto* vertexShader = new SoVertexShader;
    setSource(*vertexShader, vertexPath);
    auto* fragmentShader = new SoFragmentShader;
    setSource(*fragmentShader, fragmentPath);
    auto* program = new SoShaderProgram;
    program->shaderObject.set1Value(0, vertexShader);
    program->shaderObject.set1Value(1, fragmentShader);
    return program;
}

void SoQtGeneralViewerFrame::setBackground() {
    auto* camera = new SoOrthographicCamera;
    camera->position.setValue(0, 0, 1);
    camera->nearDistance = 0.5F;
    camera->farDistance = 1.5F;
    camera->height = 10;

    auto* corner = new SoTransform;
    corner->translation.setValue(-12000, 8000, 0);
    auto* red = new SoMaterial;
    red->diffuseColor.setValue(1, 0, 0);
    auto* font = new SoFont;
    font->name = "Times-Roman";
    font->size = 0.5F;
    auto* greeting = new SoText3;
    greeting->string = "Ciao";

    SoSeparator* background = SceneNodes::createSeparator("Background");
    background->addChild(camera);
    background->addChild(createUnits(SoUnits::POINTS));
    background->addChild(corner);
    background->addChild(createUnits(SoUnits::METERS));
    background->addChild(red);
    background->addChild(font);
    background->addChild(greeting);
    root->addChild(background);
}

void SoQtGeneralViewerFrame::closeEvent(QCloseEvent* event) {
    event->setAccepted(closableAlone);
}
