// The main function of every test program that opens windows: one application object, SoQt over it,
// and settings in a folder of the test's own, so that no test touches the user's.

#include "app/StartUp.h"

#include <Inventor/Qt/SoQt.h>
#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    StartUp::prepareEnvironment();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);

    // SoQt keeps the widget that it is initialised with: one that outlives every tested window.
    QWidget toolkitWindow;
    SoQt::init(&toolkitWindow);
    const int result = RUN_ALL_TESTS();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    SoQt::done();
    return result;
}
