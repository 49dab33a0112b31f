#include "app/StartUp.h"

#include "resources/TorvaneResources.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QSplashScreen>
#include <QWindow>

namespace {

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

QPixmap StartUp::splashPicture() {
    registerTorvaneResources();
    return {":/images/splash.png"};
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
