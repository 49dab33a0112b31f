#include "app/DrawingRequirements.h"
#include "app/MainWindow.h"
#include "app/Messages.h"
#include "app/ProgramInformation.h"
#include "app/StartUp.h"
#include "app/TerminationSignals.h"
#include "viewer/WindowSystem.h"

#include <Inventor/Qt/SoQt.h>
#include <Inventor/SbTime.h>
#include <Inventor/SoDB.h>
#include <QApplication>
#include <QSplashScreen>
#include <cstdlib>
#include <memory>

namespace {

/** Says why nothing can be shown, until the user or a signal ends that. */
int refuse(const QString& reason, TerminationSignals& terminationSignals) {
    QObject::connect(&terminationSignals, SIGNAL(received()), qApp, SLOT(quit()));
    terminationSignals.deliver();
    Messages::cannotStart(reason);
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    if (ProgramInformation::answer(argc, argv)) {
        return 0;
    }
    DrawingRequirements::explainFailedStart();
    WindowSystem::prepareEnvironment();
    QApplication application(argc, argv);
    WindowSystem::setPlugInPath();
    TerminationSignals terminationSignals;

    QSplashScreen splash(StartUp::splashPicture());
    StartUp::showSplash(splash);
    // Asked before the first view: the toolkit's own complaint keeps the program from ending.
    const QString missing = DrawingRequirements::missing();
    if (!missing.isEmpty()) {
        splash.close();
        return refuse(missing, terminationSignals);
    }

    auto mainWindow = std::make_unique<MainWindow>();
    QApplication::setActiveWindow(mainWindow.get());
    SoQt::init(mainWindow.get());
    // The scene library's clock would wake an idle program twelve times a second; no scene uses it.
    SoDB::setRealTimeInterval(SbTime::zero());
    mainWindow->setUpMainViewer();
    SoQt::show(mainWindow.get());
    StartUp::finishSplash(splash, *mainWindow);

    // Leaving all event loops also ends a dialog that is still open.
    QObject::connect(&terminationSignals, SIGNAL(received()), mainWindow.get(), SLOT(close()));
    QObject::connect(&terminationSignals, SIGNAL(received()), &application, SLOT(quit()));
    terminationSignals.deliver();
    // A window that has been closed while the program started would never end the loop.
    if (mainWindow->isVisible()) {
        SoQt::mainLoop();
    }
    // The viewers go before the toolkit, also when something else than closing ended the loop.
    if (mainWindow->isVisible()) {
        mainWindow->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    SoQt::done();
    return 0;
}
