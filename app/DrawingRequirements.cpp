#include "app/DrawingRequirements.h"

#include <QCoreApplication>
#include <QDir>
#include <QOpenGLContext>
#include <cstdlib>
#include <iostream>

namespace {

const char* const qtPackages = "libqt5gui5 (Debian, Ubuntu), qt5-qtbase-gui (Fedora), "
                               "libQt5Gui5 (openSUSE) or qt5-base (Arch Linux)";
const char* const driverPackages = "libgl1-mesa-dri (Debian, Ubuntu), mesa-dri-drivers (Fedora), "
                                   "Mesa-dri (openSUSE) or mesa (Arch Linux)";

QtMessageHandler handlerBefore = nullptr;

QString missingWindowSystem() {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        return "There is no display. Start Torvane in a desktop session; torvane-batch makes "
               "figures and numbers without one.";
    }
    return QString("No window system could be used. If the display is there, Qt's plug-ins for it "
                   "are missing: install %1.")
        .arg(qtPackages);
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    handlerBefore(type, context, message);
    if (type == QtFatalMsg && QCoreApplication::startingUp()) {
        std::cerr << missingWindowSystem().toStdString() << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace

void DrawingRequirements::explainFailedStart() {
    handlerBefore = qInstallMessageHandler(handleMessage);
}

QString DrawingRequirements::missing() {
    if (QOpenGLContext().create()) {
        return {};
    }
    const QString folder = QDir::cleanPath(QCoreApplication::libraryPaths().value(0));
    if (!QDir(folder + "/xcbglintegrations").exists()) {
        return QString("Torvane cannot draw: Qt's plug-ins are not in %1.\nInstall %2, and Torvane "
                       "anew if that folder is still missing then.")
            .arg(folder, qtPackages);
    }
    return QString(
               "Torvane cannot draw: there is no OpenGL on this display.\nInstall a driver: %1.")
        .arg(driverPackages);
}
