#include "app/StartUp.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSplashScreen>
#include <QStringList>
#include <QWindow>

namespace {

bool isSet(const char* variable) {
    return qEnvironmentVariableIsSet(variable);
}

/** How long a window is waited for on a window system that never exposes it, in milliseconds. */
constexpr int patience = 500;

void waitUntilExposed(const QWidget& widget) {
    QElapsedTimer timer;
    timer.start();
    while (!widget.windowHandle()->isExposed() && timer.elapsed() < patience) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, patience);
    }
}

} // namespace

void StartUp::prepareEnvironment() {
    // The OpenGL widget is not reliable on Wayland; through the X server beside it, it is.
    if (isSet("DISPLAY") && !isSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    // SoQt makes its OpenGL widget too large under Qt's automatic scaling.
    if (!isSet("QT_ENABLE_HIGHDPI_SCALING") && !isSet("QT_AUTO_SCREEN_SCALE_FACTOR")) {
        qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    }
}

void StartUp::setPlugInPath() {
    QCoreApplication::setLibraryPaths(
        QStringList(QCoreApplication::applicationDirPath() + "/../PlugIns"));
}

void StartUp::showSplash(QSplashScreen& splash) {
    splash.show();
    splash.showMessage(QObject::tr("Computing..."), Qt::AlignRight | Qt::AlignTop, Qt::white);
    waitUntilExposed(splash);
    splash.repaint();
}

void StartUp::finishSplash(QSplashScreen& splash, QWidget& mainWindow) {
    // Waiting by itself, the splash would look only every ten milliseconds.
    waitUntilExposed(mainWindow);
    splash.finish(&mainWindow);
}
