// The main function of every test program that opens windows on no display at all, with settings in
// a folder of its own.

#include <Inventor/Qt/SoQt.h>
#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // Frames make scene nodes, also those that are never drawn.
    QWidget toolkitWindow;
    SoQt::init(&toolkitWindow);
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    SoQt::done();
    return result;
}
