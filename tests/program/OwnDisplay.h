#pragma once

#include "tests/program/RunningViewer.h"

#include <QProcess>
#include <gtest/gtest.h>

/** A display of the test's own. */
class OwnDisplay {
public:
    OwnDisplay() {
        server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-noreset"});
        EXPECT_TRUE(server.waitForReadyRead());
        displayName = ":" + QString(server.readLine()).trimmed();
    }
    ~OwnDisplay() {
        server.terminate();
        server.waitForFinished();
    }
    OwnDisplay(const OwnDisplay&) = delete;
    OwnDisplay& operator=(const OwnDisplay&) = delete;

    const QString& name() const { return displayName; }
    void kill() { server.kill(); }

private:
    QProcess server;
    QString displayName;
};

/** A window manager that looks after the windows of a display. */
class WindowManager {
public:
    explicit WindowManager(const OwnDisplay& display) {
        process.setProcessEnvironment(RunningViewer::environmentOn(display.name()));
        // It says so once it manages the display: a window shown before that could not be
        // activated.
        process.start("openbox", {"--startup", "echo ready"});
        EXPECT_TRUE(process.waitForReadyRead());
    }
    ~WindowManager() {
        process.terminate();
        process.waitForFinished();
    }
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;

private:
    QProcess process;
};
