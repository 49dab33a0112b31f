// What the user's moves cost until their pictures are there, with the surfaces' pictures kept and
// with every frame drawn wholly. The processor's time of all threads, those of the rasteriser too;
// for the held key the time that passes between two pictures.

#include "bench/ShownWindow.h"
#include "bench/WindowBenchmarks.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/nodes/SoCamera.h>
#include <Inventor/system/gl.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QGLWidget>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <ctime>
#include <functional>
#include <string>

namespace {

using benchmark::RegisterBenchmark;
using benchmark::State;
using Move = std::function<void(ShownWindow&, int)>;
using Views = std::vector<SoQtGeneralViewerFrame*>;

constexpr double millisecondsPerSecond = 1000;

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/** Draws the views and waits for their pixels. */
void draw(const Views& views) {
    for (const SoQtGeneralViewerFrame* view : views) {
        view->getViewer()->render();
        static_cast<QGLWidget*>(view->getViewer()->getGLWidget())->makeCurrent();
        std::array<unsigned char, 4> pixel{};
        glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
    }
}

void drawUntilKept(const Views& views) {
    // What the window system still asks for is painted first.
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
    }
    for (int i = 0; i < 3; ++i) {
        draw(views);
    }
}

void makeMoves(State& state, ShownWindow& shown, const Views& views, const Move& move) {
    int number = 0;
    drawUntilKept(views);
    for ([[maybe_unused]] const auto iteration : state) {
        const double before = processorSeconds();
        move(shown, ++number);
        draw(views);
        state.SetIterationTime(processorSeconds() - before);
    }
}

void step(ShownWindow& shown, int /*number*/) {
    shown.u().moveSphere(HyperboloidFrame::LEFT);
}

void slideLightness(ShownWindow& shown, int number) {
    QMetaObject::invokeMethod(&shown.mainWindow(), "refreshHyperboloidLight",
                              Q_ARG(int, 30 + number % 40));
}

void turn(ShownWindow& shown, int number) {
    const auto angle = static_cast<float>(number * 0.013);
    shown.u().getViewer()->getCamera()->orientation = SbRotation(SbVec3f(0.3F, 1, 0.2F), angle);
}

/** Lets a key repeat itself as the window system does it, and times the pictures of the U view. */
void holdKey(State& state, ShownWindow& shown) {
    constexpr int repeatMilliseconds = 33;
    constexpr int heldMilliseconds = 1500;
    QWidget* view = shown.u().getViewer()->getGLWidget();
    QTimer key;
    QObject::connect(&key, &QTimer::timeout, [view] {
        QCoreApplication::postEvent(view,
                                    new QKeyEvent(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier));
    });
    drawUntilKept(shown.views());
    for ([[maybe_unused]] const auto iteration : state) {
        const int drawnBefore = shown.drawnFrames();
        QElapsedTimer held;
        held.start();
        key.start(repeatMilliseconds);
        while (held.elapsed() < heldMilliseconds) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        key.stop();
        const int drawn = std::max(shown.drawnFrames() - drawnBefore, 1);
        state.SetIterationTime(static_cast<double>(held.elapsed()) / millisecondsPerSecond / drawn);
    }
}

void registerBothWays(const std::string& work, int grid,
                      const std::function<void(State&, ShownWindow&)>& run) {
    for (const bool keeps : {false, true}) {
        const std::string name = work + ", " + std::to_string(grid) + " x " + std::to_string(grid) +
                                 (keeps ? "/ours" : "/wholly");
        RegisterBenchmark(name.c_str(), [=](State& state) {
            ShownWindow shown(grid, keeps);
            shown.u().SetPreviousHelix(&shown.helix());
            run(state, shown);
        })->UseManualTime();
    }
}

void registerGrid(int grid) {
    const auto surfaces = [](const ShownWindow& shown) {
        Views views = shown.views();
        views.pop_back();
        return views;
    };
    registerBothWays("drawn key step, four views", grid, [](State& state, ShownWindow& shown) {
        makeMoves(state, shown, shown.views(), step);
    });
    registerBothWays("drawn key step, the U view", grid, [](State& state, ShownWindow& shown) {
        makeMoves(state, shown, {&shown.u()}, step);
    });
    registerBothWays("drawn slider step, three views", grid, [=](State& state, ShownWindow& shown) {
        makeMoves(state, shown, surfaces(shown), slideLightness);
    });
    registerBothWays("drag frame, the U view", grid, [](State& state, ShownWindow& shown) {
        makeMoves(state, shown, {&shown.u()}, turn);
    });
    registerBothWays("held key, a picture every", grid, holdKey);
}

void registerAll() {
    for (const int grid : {64, 500}) {
        registerGrid(grid);
    }
}

} // namespace

int main(int argc, char** argv) {
    return WindowBenchmarks::run(argc, argv, registerAll);
}
