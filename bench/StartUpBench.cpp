// usage: start_up_bench
//
// The time from the command to four drawn views, beside that of a bare program: four empty examiner
// viewers of the same size in a document area. Both run as processes of their own, this program
// again with an argument, and end by themselves once each view has been drawn.

#include "app/DrawingRequirements.h"
#include "app/MainWindow.h"
#include "app/StartUp.h"
#include "bench/RatioReporter.h"
#include "viewer/SoQtGeneralViewerFrame.h"
#include "viewer/WindowSystem.h"

#include <Inventor/Qt/SoQt.h>
#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCallback.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QApplication>
#include <QGLWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QSplashScreen>
#include <array>
#include <chrono>
#include <memory>
#include <unistd.h>

namespace {

constexpr std::size_t viewCount = 4;
constexpr QSize windowSize(1000, 800);

/** Ends the process, at once and without cleaning up, when every scene has been drawn. */
class EndWhenDrawn {
public:
    void watch(std::size_t view, SoGroup& scene) {
        drawn[view] = {this, false};
        auto* look = new SoCallback;
        look->setCallback(lookAt, &drawn[view]);
        scene.addChild(look);
    }

private:
    struct View {
        EndWhenDrawn* owner;
        bool drawn;
    };

    static void lookAt(void* data, SoAction* action) {
        if (!action->isOfType(SoGLRenderAction::getClassTypeId())) {
            return;
        }
        auto& view = *static_cast<View*>(data);
        view.drawn = true;
        for (const View& each : view.owner->drawn) {
            if (!each.drawn) {
                return;
            }
        }
        _exit(0);
    }

    std::array<View, viewCount> drawn{};
};

int runBareProgram(int argc, char** argv) {
    WindowSystem::prepareEnvironment();
    const QApplication application(argc, argv);
    QMainWindow window;
    auto* area = new QMdiArea;
    window.setCentralWidget(area);
    window.resize(windowSize);
    SoQt::init(&window);
    EndWhenDrawn end;
    std::vector<std::unique_ptr<SoQtExaminerViewer>> viewers;
    for (std::size_t view = 0; view < viewCount; ++view) {
        auto* frame = new QFrame;
        frame->setMinimumSize(400, 300);
        viewers.push_back(std::make_unique<SoQtExaminerViewer>(frame));
        auto* scene = new SoSeparator;
        end.watch(view, *scene);
        viewers.back()->setSceneGraph(scene);
        auto* widget = static_cast<QGLWidget*>(viewers.back()->getGLWidget());
        QGLFormat format = widget->format();
        format.setSampleBuffers(true);
        format.setSamples(4);
        widget->setFormat(format);
        viewers.back()->show();
        area->addSubWindow(frame);
        frame->show();
    }
    area->tileSubWindows();
    SoQt::show(&window);
    SoQt::mainLoop();
    return 1;
}

/** The same steps as the program's own. */
int runViewer(int argc, char** argv) {
    WindowSystem::prepareEnvironment();
    const QApplication application(argc, argv);
    WindowSystem::setPlugInPath();
    QSplashScreen splash(StartUp::splashPicture());
    StartUp::showSplash(splash);
    if (!DrawingRequirements::missing().isEmpty()) {
        return 1;
    }
    MainWindow window;
    window.resize(windowSize);
    QApplication::setActiveWindow(&window);
    SoQt::init(&window);
    window.setUpMainViewer();
    EndWhenDrawn end;
    std::size_t view = 0;
    for (const QMdiSubWindow* subWindow : window.findChild<QMdiArea*>()->subWindowList()) {
        const auto* frame = qobject_cast<SoQtGeneralViewerFrame*>(subWindow->widget());
        end.watch(view++, *frame->getSceneRoot());
    }
    SoQt::show(&window);
    StartUp::finishSplash(splash, window);
    SoQt::mainLoop();
    return 1;
}

void startProgram(benchmark::State& state, const char* argument) {
    for ([[maybe_unused]] const auto iteration : state) {
        QProcess process;
        const auto before = std::chrono::steady_clock::now();
        process.start("/proc/self/exe", {argument});
        process.waitForFinished();
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - before;
        state.SetIterationTime(passed.count());
        if (process.exitCode() != 0 || process.exitStatus() != QProcess::NormalExit) {
            state.SkipWithError("the program failed");
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "bare") {
        return runBareProgram(argc, argv);
    }
    if (mode == "viewer") {
        return runViewer(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    benchmark::RegisterBenchmark("start to four drawn views/ours",
                                 [](benchmark::State& state) { startProgram(state, "viewer"); })
        ->UseManualTime()
        ->Iterations(3);
    benchmark::RegisterBenchmark("start to four drawn views/bare",
                                 [](benchmark::State& state) { startProgram(state, "bare"); })
        ->UseManualTime()
        ->Iterations(3);
    return RatioReporter::runAll(argc, argv);
}
