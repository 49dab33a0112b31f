#include "app/Documents.h"

#include "app/DocumentRepaint.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace {

SoQtGeneralViewerFrame* frameIn(const QMdiSubWindow* subWindow) {
    return subWindow == nullptr ? nullptr
                                : qobject_cast<SoQtGeneralViewerFrame*>(subWindow->widget());
}

} // namespace

Documents::Documents(QMdiArea& documentArea, FrameOwner& frameOwner)
    : area(documentArea)
    , owner(frameOwner) {
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void Documents::setUp() {
    HyperboloidFrame* u = createHyperboloid(Hyperboloid::USPACE, "In U Space");
    HyperboloidFrame* x = createHyperboloid(Hyperboloid::XSPACE, "In X Space");
    HyperboloidFrame* m = createHyperboloid(Hyperboloid::MSPACE, "In M Space");
    trio.setUp(u, x, m);
    for (HyperboloidFrame* frame : {u, x, m}) {
        frame->show();
    }
    area.setActiveSubWindow(nullptr);
    area.setActiveSubWindow(area.subWindowList().constFirst());
    openHelix();
    area.tileSubWindows();
}

void Documents::openHelix() {
    if (trio.of(Hyperboloid::USPACE) == nullptr) {
        return;
    }
    HelixFrame* helix = createHelix(true);
    helix->show();
    trio.addSpheres(helix->getName(), 0);
    // By way of no window and the U frame, so that both steps are heard: the new helix ends up as
    // the current frame and the U frame as the previous one.
    area.setActiveSubWindow(nullptr);
    area.setActiveSubWindow(area.subWindowList().constFirst());
    area.setActiveSubWindow(area.subWindowList().constLast());
}

void Documents::addFrame(SoQtGeneralViewerFrame* frame, const char* viewerTitle) {
    // Its viewer shows the frame while that has no parent yet. On the screen it would flash, and a
    // window manager that takes it in hand while it moves into the area can destroy it.
    frame->setAttribute(Qt::WA_DontShowOnScreen);
    frame->initialize();
    frame->setTitle(viewerTitle);
    new DocumentRepaint(area.addSubWindow(frame));
    frame->setAttribute(Qt::WA_DontShowOnScreen, false);
}

HyperboloidFrame* Documents::createHyperboloid(int space, const char* viewerTitle) {
    const HyperboloidParameters start;
    const auto single = [](double value) {
        return static_cast<float>(value);
    };
    auto* frame = new HyperboloidFrame(single(start.K1), single(start.K2), single(start.K3),
                                       single(start.K13), single(start.K23), single(start.U1),
                                       single(start.U2), single(start.U3), space, false, &owner);
    addFrame(frame, viewerTitle);
    return frame;
}

HelixFrame* Documents::createHelix(bool closable) {
    const Hyperboloid& u = *trio.of(Hyperboloid::USPACE);
    auto* frame = new HelixFrame(u.surfaceVertex(0), closable, &owner);
    addFrame(frame, "Helix Viewer");
    ++livingHelices;
    return frame;
}

void Documents::helixDied(SbName name) {
    trio.forgetHelix(name);
    --livingHelices;
}

std::vector<HelixFrame*> Documents::helices() const {
    std::vector<HelixFrame*> found;
    for (const QMdiSubWindow* subWindow : area.subWindowList()) {
        if (auto* helix = qobject_cast<HelixFrame*>(subWindow->widget())) {
            found.push_back(helix);
        }
    }
    return found;
}

SoQtGeneralViewerFrame* Documents::active() const {
    return frameIn(area.activeSubWindow());
}

int Documents::count() const {
    return area.subWindowList().size();
}

QMdiSubWindow* Documents::find(const QString& title) const {
    for (QMdiSubWindow* subWindow : area.subWindowList()) {
        if (frameIn(subWindow)->windowTitle() == title) {
            return subWindow;
        }
    }
    return nullptr;
}

void Documents::activate(QWidget* window) {
    if (window != nullptr) {
        area.setActiveSubWindow(qobject_cast<QMdiSubWindow*>(window));
    }
}

void Documents::stackInOrder() {
    for (QMdiSubWindow* subWindow : area.subWindowList()) {
        subWindow->raise();
    }
}

void Documents::closeHelices() {
    // The hyperboloid frames refuse to be closed alone, so only helices go.
    for (QMdiSubWindow* subWindow : area.subWindowList()) {
        if (frameIn(subWindow)->getId() != 0) {
            area.setActiveSubWindow(subWindow);
            area.closeActiveSubWindow();
        }
    }
}

bool Documents::closeAll() {
    // Helices first: each one that dies takes its spheres out of the hyperboloid frames.
    area.closeAllSubWindows();
    trio.setClosableAlone(true);
    area.closeAllSubWindows();
    return area.currentSubWindow() == nullptr;
}

void Documents::destroyAll() {
    // Only the area's list has forgotten those that have been closed and wait for the event loop.
    qDeleteAll(area.findChildren<QMdiSubWindow*>());
}
