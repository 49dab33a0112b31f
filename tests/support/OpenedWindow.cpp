#include "tests/support/OpenedWindow.h"

#include <QLabel>
#include <algorithm>
#include <gtest/gtest.h>

OpenedWindow::OpenedWindow(QSize size)
    : mainWindow(std::make_unique<MainWindow>()) {
    mainWindow->resize(size);
    mainWindow->move(0, 0);
    mainWindow->setUpMainViewer();
    mainWindow->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(mainWindow.get(), patience));
    mainWindow->activateWindow();
    EXPECT_TRUE(waitUntilAllViewsAreDrawn());
}

OpenedWindow::~OpenedWindow() {
    mainWindow->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QMdiArea& OpenedWindow::area() const {
    return *mainWindow->findChild<QMdiArea*>();
}

std::vector<SoQtGeneralViewerFrame*> OpenedWindow::frames() const {
    std::vector<SoQtGeneralViewerFrame*> found;
    for (const QMdiSubWindow* subWindow : area().subWindowList()) {
        found.push_back(qobject_cast<SoQtGeneralViewerFrame*>(subWindow->widget()));
    }
    return found;
}

HyperboloidFrame& OpenedWindow::hyperboloid(int space) const {
    return *qobject_cast<HyperboloidFrame*>(frames().at(static_cast<std::size_t>(space)));
}

std::vector<HelixFrame*> OpenedWindow::helices() const {
    std::vector<HelixFrame*> found;
    for (SoQtGeneralViewerFrame* frame : frames()) {
        if (auto* helix = qobject_cast<HelixFrame*>(frame)) {
            found.push_back(helix);
        }
    }
    return found;
}

QAction& OpenedWindow::action(const char* name) const {
    return *mainWindow->findChild<QAction*>(name);
}

QString OpenedWindow::label(const char* name) const {
    return mainWindow->findChild<QLabel*>(name)->text();
}

QMdiSubWindow& OpenedWindow::subWindow(const SoQtGeneralViewerFrame& frame) const {
    const QList<QMdiSubWindow*> all = area().subWindowList();
    return **std::find_if(all.begin(), all.end(), [&](const QMdiSubWindow* subWindow) {
        return subWindow->widget() == &frame;
    });
}

void OpenedWindow::activate(const SoQtGeneralViewerFrame& frame) const {
    area().setActiveSubWindow(&subWindow(frame));
}

void OpenedWindow::tie(const HelixFrame& helix, const HyperboloidFrame& hyperboloid) const {
    activate(hyperboloid);
    activate(helix);
    activate(hyperboloid);
}

void OpenedWindow::closeFrame(SoQtGeneralViewerFrame& frame) const {
    const QPointer<SoQtGeneralViewerFrame> guarded(&frame);
    QMdiSubWindow& closed = subWindow(frame);
    if (closed.close()) {
        EXPECT_TRUE(waitUntil([&] { return guarded.isNull(); }));
    }
}

bool OpenedWindow::waitUntilAllViewsAreDrawn() const {
    const std::vector<SoQtGeneralViewerFrame*> all = frames();
    return waitUntil([&] {
        return std::all_of(all.begin(), all.end(), [](SoQtGeneralViewerFrame* frame) {
            return ViewDriver(*frame).isDrawn();
        });
    });
}
