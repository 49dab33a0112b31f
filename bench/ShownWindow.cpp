#include "bench/ShownWindow.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCallback.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

ShownWindow::ShownWindow(int grid, bool keepsPictures) {
    window.resize(1000, 800);
    window.setUpMainViewer();
    window.refresh_hyperboloids(1, 1.5, 1, 0.5, 0.5, 1, 0, 0, grid, grid, 0.3, 7, 7, 0.02, 0.03);
    for (SoQtGeneralViewerFrame* view : views()) {
        view->getViewer()->setKeepsPictures(keepsPictures);
    }
    countFrames();
    window.show();
    [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(&window);
    QCoreApplication::processEvents();
}

HyperboloidFrame& ShownWindow::u() const {
    return *qobject_cast<HyperboloidFrame*>(views().front());
}

HelixFrame& ShownWindow::helix() const {
    return *qobject_cast<HelixFrame*>(views().back());
}

std::vector<SoQtGeneralViewerFrame*> ShownWindow::views() const {
    std::vector<SoQtGeneralViewerFrame*> found;
    for (const QMdiSubWindow* document : window.findChild<QMdiArea*>()->subWindowList()) {
        found.push_back(qobject_cast<SoQtGeneralViewerFrame*>(document->widget()));
    }
    return found;
}

void ShownWindow::countFrames() {
    auto* counter = new SoCallback;
    counter->setCallback(
        [](void* count, SoAction* action) {
            if (action->isOfType(SoGLRenderAction::getClassTypeId())) {
                ++*static_cast<int*>(count);
            }
        },
        &frames);
    u().getSceneRoot()->addChild(counter);
}
