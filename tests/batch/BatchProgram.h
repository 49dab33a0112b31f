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

    /** The same, or another environment, where no driver can be found without a display. */
    static QProcessEnvironment
    environmentWithoutEgl(QProcessEnvironment environment = bareEnvironment()) {
        environment.insert("__EGL_VENDOR_LIBRARY_FILENAMES", "/proc/nowhere");
        return environment;
    }

    /** Runs it in a folder until it ends. */
    static BatchProgram run(const QStringList& arguments, const QString& folder = {},
                            const QProcessEnvironment& environment = bareEnvironment()) {
        return runProgram(TORVANE_BATCH, arguments, folder, environment);
    }

    /** Runs it where it gets no more than so much memory. */
    static BatchProgram runInMemory(int kilobytes, const QStringList& arguments,
                                    const QString& folder) {
        const QString limited = QString(R"(ulimit -v %1; exec "$0" "$@")").arg(kilobytes);
        return runProgram("sh", QStringList{"-c", limited, TORVANE_BATCH} + arguments, folder,
                          bareEnvironment());
    }

private:
    static BatchProgram runProgram(const QString& program, const QStringList& arguments,
                                   const QString& folder, const QProcessEnvironment& environment) {
        constexpr int patience = 300000;
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder);
        process.start(program, arguments);
        process.waitForFinished(patience);
        const bool ended = process.exitStatus() == QProcess::NormalExit;
        return {ended ? process.exitCode() : -1, process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
};
