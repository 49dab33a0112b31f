#pragma once

#include "app/MainWindow.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "tests/support/ViewDriver.h"
#include "tests/support/Waiting.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <vector>

/** The real main window with its four documents, on the screen and drawn; closed at the end. */
class OpenedWindow {
public:
    /** Large enough to use every view, and no larger: most of a test's time is drawing. */
    static constexpr QSize usualSize{760, 620};
    /** Where the four documents have room for their smallest size side by side. */
    static constexpr QSize roomySize{1000, 800};

    explicit OpenedWindow(QSize size = usualSize);
    ~OpenedWindow();
    OpenedWindow(const OpenedWindow&) = delete;
    OpenedWindow& operator=(const OpenedWindow&) = delete;

    MainWindow& window() const { return *mainWindow; }
    QMdiArea& area() const;
    HyperboloidFrame& hyperboloid(int space) const;
    /** The helix frames alive, the oldest first. */
    std::vector<HelixFrame*> helices() const;
    HelixFrame& firstHelix() const { return *helices().front(); }
    std::vector<SoQtGeneralViewerFrame*> frames() const;

    /** An action by its object name, for example "newAct". */
    QAction& action(const char* name) const;

    /** The text of a permanent label of the status bar by its object name. */
    QString label(const char* name) const;

    /** Calls one of the window's slots, as a connected signal does. */
    template <typename... Arguments>
    void call(const char* slot, Arguments... arguments) const {
        const bool called = QMetaObject::invokeMethod(mainWindow.get(), slot, arguments...);
        Q_ASSERT(called);
        Q_UNUSED(called)
    }

    QMdiSubWindow& subWindow(const SoQtGeneralViewerFrame& frame) const;
    void activate(const SoQtGeneralViewerFrame& frame) const;

    /** Activates a helix and then a hyperboloid, so that the one steers the other. */
    void tie(const HelixFrame& helix, const HyperboloidFrame& hyperboloid) const;

    /** Closes a document as a user does, and waits until it is gone when it agrees. */
    void closeFrame(SoQtGeneralViewerFrame& frame) const;

    bool waitUntilAllViewsAreDrawn() const;

private:
    std::unique_ptr<MainWindow> mainWindow;
};
