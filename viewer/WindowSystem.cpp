#include "viewer/WindowSystem.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

bool isSet(const char* variable) {
    return qEnvironmentVariableIsSet(variable);
}

} // namespace

void WindowSystem::prepareEnvironment() {
    // The OpenGL widget is not reliable on Wayland; through the X server beside it, it is.
    if (isSet("DISPLAY") && !isSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    // SoQt makes its OpenGL widget too large under Qt's automatic scaling.
    if (!isSet("QT_ENABLE_HIGHDPI_SCALING") && !isSet("QT_AUTO_SCREEN_SCALE_FACTOR")) {
        qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    }
}

void WindowSystem::setPlugInPath() {
    QCoreApplication::setLibraryPaths(
        QStringList(QCoreApplication::applicationDirPath() + "/../PlugIns"));
}
