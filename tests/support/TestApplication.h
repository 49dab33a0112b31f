#pragma once

#include "viewer/WindowSystem.h"

#include <Inventor/Qt/SoQt.h>
#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>

/**
 * What every program that opens the viewer's windows in a test needs: one application object, SoQt
 * over it, and settings in a folder of the test's own, so that no test touches the user's.
 */
class TestApplication {
public:
    TestApplication(int& argc, char** argv)
        : application(prepared(argc, settings), argv) {
        QApplication::setQuitOnLastWindowClosed(false);
        SoQt::init(&toolkitWindow);
    }
    ~TestApplication() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        SoQt::done();
    }
    TestApplication(const TestApplication&) = delete;
    TestApplication& operator=(const TestApplication&) = delete;

private:
    /** The environment must be in place before the application object is. */
    static int& prepared(int& argc, const QTemporaryDir& folder) {
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
        WindowSystem::prepareEnvironment();
        return argc;
    }

    QTemporaryDir settings;
    QApplication application;
    /** SoQt keeps the widget that it is initialised with: one that outlives every tested window. */
    QWidget toolkitWindow;
};
