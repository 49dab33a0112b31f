#pragma once

#include "tests/support/FileContent.h"

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/** The built program, as it runs where there is neither a display nor a home. */
struct BatchProgram {
    int exitCode;
    QByteArray output;
    QByteArray errors;

    static QProcessEnvironment bareEnvironment() {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY"}) {
            environment.remove(display);
        }
        for (const char* folder :
             {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
            environment.insert(folder, "/proc/nowhere");
        }
        return environment;
    }

    /** Runs it in a folder until it ends. */
    static BatchProgram run(const QStringList& arguments, const QString& folder = {},
                            const QProcessEnvironment& environment = bareEnvironment()) {
        constexpr int patience = 300000;
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder);
        process.start(TORVANE_BATCH, arguments);
        process.waitForFinished(patience);
        const bool ended = process.exitStatus() == QProcess::NormalExit;
        return {ended ? process.exitCode() : -1, process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
};
