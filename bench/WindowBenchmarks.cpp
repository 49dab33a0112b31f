#include "bench/WindowBenchmarks.h"

#include "bench/RatioReporter.h"
#include "viewer/WindowSystem.h"

#include <Inventor/Qt/SoQt.h>
#include <QApplication>
#include <QWidget>

int WindowBenchmarks::run(int argc, char** argv, void (*registerAll)()) {
    WindowSystem::prepareEnvironment();
    const QApplication application(argc, argv);
    QWidget toolkitWindow;
    SoQt::init(&toolkitWindow);
    registerAll();
    return RatioReporter::runAll(argc, argv);
}
