#include "viewer/SoQtGeneralViewer.h"

#include "viewer/DocumentScene.h"
#include "viewer/SeenScene.h"
#include "viewer/SoQtGeneralViewerFrame.h"

#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/system/gl.h>
#include <QWidget>
#include <QWindow>

SoQtGeneralViewer::SoQtGeneralViewer(SoQtGeneralViewerFrame* owner, const char* name, int embed)
    : SoQtExaminerViewer(owner, name, embed, SoQtFullViewer::BUILD_ALL, SoQtViewer::BROWSER)
    , frame(owner)
    , windowReturn([this] { scheduleRedraw(); })
    , keepsPictures(qgetenv("TORVANE_KEEP_PICTURES") != "0") {
    setCameraType(SoOrthographicCamera::getClassTypeId());
    setPopupMenuEnabled(FALSE);
    setDrawStyle(SoQtViewer::INTERACTIVE, SoQtViewer::VIEW_SAME_AS_STILL);
}

SoQtGeneralViewer::~SoQtGeneralViewer() {
    if (root != nullptr) {
        root->setSurfaceSource(nullptr, nullptr);
    }
    if (!surfacePicture.isEmpty()) {
        glLockNormal();
        surfacePicture.drop();
        glUnlockNormal();
    }
}

void SoQtGeneralViewer::lightBothSides() {
    // The viewer's own graph around the scene, not the scene.
    SeenScene::lightBothSides(static_cast<SoSeparator&>(*getSceneManager()->getSceneGraph()));
}

void SoQtGeneralViewer::keepSurfaceOf(const DocumentScene& scene) {
    root.reset(scene.getRoot());
    const SoNode* surface = scene.getDrawStyleSeparator();
    root->setSurfaceSource(
        surface, [this, surface](SoGLRenderAction& action, const DocumentRoot::DrawSurface& draw) {
            // The scene is also drawn elsewhere, for exports.
            return &action == getGLRenderAction() && drawsInOneGo() &&
                   surfacePicture.show(action, *surface, draw);
        });
}

bool SoQtGeneralViewer::drawsInOneGo() const {
    SbBool smoothing = FALSE;
    int passes = 1;
    getAntialiasing(smoothing, passes);
    return keepsPictures && !smoothing && passes == 1 && getDrawStyle(STILL) == VIEW_AS_IS &&
           getDrawStyle(INTERACTIVE) == VIEW_SAME_AS_STILL && !isStereoViewing() &&
           getBufferingType() == BUFFER_DOUBLE && isClearBeforeRender() &&
           isClearZBufferBeforeRender();
}

SbBool SoQtGeneralViewer::isSeekMode() const {
    return SoQtViewer::isSeekMode();
}

SbBool SoQtGeneralViewer::processSoEvent(const SoEvent* event) {
    if (processKey(event) || frame->processSoEvent(event) != 0) {
        return TRUE;
    }
    return SoQtExaminerViewer::processSoEvent(event);
}

bool SoQtGeneralViewer::processKey(const SoEvent* event) {
    if (!SoKeyboardEvent::isKeyPressEvent(event, SoKeyboardEvent::ANY)) {
        return false;
    }
    switch (static_cast<const SoKeyboardEvent*>(event)->getKey()) {
    case SoKeyboardEvent::SPACE:
        frame->toggleDrawStyle();
        return true;
    case SoKeyboardEvent::P:
        setCameraType(SoPerspectiveCamera::getClassTypeId());
        return true;
    case SoKeyboardEvent::O:
        setCameraType(SoOrthographicCamera::getClassTypeId());
        return true;
    default:
        return false;
    }
}

void SoQtGeneralViewer::redraw() {
    if (!isInSight()) {
        windowReturn.waitFor(*getGLWidget()->window());
        return;
    }
    // Uncovered, it is painted by the toolkit.
    if (cover.covers(getGLWidget()->internalWinId())) {
        return;
    }
    fitIntoParent();
    const SbVec2s size = getViewportRegion().getWindowSize();
    if (size == presentedSize) {
        SoQtExaminerViewer::redraw();
        cover.watch(getGLWidget()->winId());
        return;
    }
    presentedSize = size;
    presentEmptyFrame();
    // The toolkit paints the widget after a change of size anyway: the scene is drawn with that.
    getGLWidget()->update();
}

SbBool SoQtGeneralViewer::glScheduleRedraw() {
    surfacePicture.forget();
    return SoQtExaminerViewer::glScheduleRedraw();
}

bool SoQtGeneralViewer::isInSight() const {
    const QWidget* widget = getGLWidget();
    const QWindow* view = widget->windowHandle();
    const QWindow* around = widget->window()->windowHandle();
    return view != nullptr && view->isExposed() && around != nullptr && around->isExposed() &&
           !widget->window()->isMinimized() && !widget->visibleRegion().isEmpty();
}

void SoQtGeneralViewer::fitIntoParent() {
    QWidget* widget = getGLWidget();
    const QRect room = widget->parentWidget()->contentsRect();
    if (widget->width() > room.width() || widget->height() > room.height()) {
        widget->setGeometry(room);
    }
}

void SoQtGeneralViewer::presentEmptyFrame() {
    glLockNormal();
    const SbColor& background = getBackgroundColor();
    glClearColor(background[0], background[1], background[2], 0);
    glClear(GL_COLOR_BUFFER_BIT);
    glSwapBuffers();
    glUnlockNormal();
}
