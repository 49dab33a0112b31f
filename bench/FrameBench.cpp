// What drawing one frame of a view costs the GUI thread, at the finest grid. With software OpenGL
// the rasteriser's own threads come on top; they are not counted.

#include "app/ImageExport.h"
#include "app/MainWindow.h"
#include "bench/RatioReporter.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "viewer/SoQtGeneralViewer.h"
#include "viewer/WindowSystem.h"

#include <Inventor/Qt/SoQt.h>
#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace {

using benchmark::RegisterBenchmark;
using benchmark::State;

double threadSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    constexpr double nanosecondsPerSecond = 1e9;
    return static_cast<double>(now.tv_sec) +
           static_cast<double>(now.tv_nsec) / nanosecondsPerSecond;
}

constexpr int finestGrid = 500;
constexpr int coarseGrid = 64;

class ShownWindow {
public:
    explicit ShownWindow(int grid = finestGrid) {
        window.resize(1000, 800);
        window.setUpMainViewer();
        window.refresh_hyperboloids(1, 1.5, 1, 0.5, 0.5, 1, 0, 0, grid, grid, 0.3, 7, 7, 0.02,
                                    0.03);
        window.show();
        [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(&window);
        QCoreApplication::processEvents();
    }

    HyperboloidFrame& u() const {
        return *qobject_cast<HyperboloidFrame*>(
            window.findChild<QMdiArea*>()->subWindowList()[0]->widget());
    }

    SoSeparator& surface() const {
        auto* branch = static_cast<SoSeparator*>(u().getSceneRoot()->getChild(3));
        return *static_cast<SoSeparator*>(branch->getChild(branch->getNumChildren() - 1));
    }

    void drawRepeatedly(State& state) const {
        SoQtGeneralViewer& viewer = *u().getViewer();
        viewer.render();
        viewer.render();
        for ([[maybe_unused]] const auto iteration : state) {
            const double before = threadSeconds();
            viewer.render();
            state.SetIterationTime(threadSeconds() - before);
        }
    }

private:
    MainWindow window;
};

void drawSurface(State& state, SoSeparator::CacheEnabled caching) {
    const ShownWindow shown;
    shown.surface().renderCaching = caching;
    shown.drawRepeatedly(state);
}

void drawAsIs(State& state) {
    const ShownWindow shown;
    shown.drawRepeatedly(state);
}

void drawFullyCached(State& state) {
    const ShownWindow shown;
    shown.u().getSceneRoot()->renderCaching = SoSeparator::ON;
    shown.drawRepeatedly(state);
}

/** A frame right after the surface was replaced, as after every step of an appearance slider. */
void drawNewSurface(State& state, SoSeparator::CacheEnabled caching) {
    const ShownWindow shown;
    SoQtGeneralViewer& viewer = *shown.u().getViewer();
    viewer.render();
    for ([[maybe_unused]] const auto iteration : state) {
        shown.u().reDraw(false, false);
        shown.surface().renderCaching = caching;
        const double before = threadSeconds();
        viewer.render();
        state.SetIterationTime(threadSeconds() - before);
    }
}

/** The export of a picture of 1800 x 1500, as the program without a window makes many. */
void exportImage(State& state) {
    const ShownWindow shown(coarseGrid);
    SoQtGeneralViewer& viewer = *shown.u().getViewer();
    const auto pixels = [](int inches) {
        const float count =
            static_cast<float>(inches) * SoOffscreenRenderer::getScreenPixelsPerInch();
        return static_cast<short>(std::ceil(count));
    };
    viewer.setViewportRegion(SbViewportRegion(pixels(6), pixels(5)));
    for ([[maybe_unused]] const auto iteration : state) {
        std::FILE* file = std::tmpfile();
        constexpr int dotsPerInch = 300;
        if (!ImageExport::printToPostScript(shown.u().getSceneRoot(), file, &viewer, dotsPerInch)) {
            state.SkipWithError("The picture cannot be exported.");
        }
        std::fclose(file);
    }
}

} // namespace

int main(int argc, char** argv) {
    WindowSystem::prepareEnvironment();
    const QApplication application(argc, argv);
    QWidget toolkitWindow;
    SoQt::init(&toolkitWindow);
    RegisterBenchmark("frame of U, 500 x 500/uncached", [](State& state) {
        drawSurface(state, SoSeparator::OFF);
    })->UseManualTime();
    RegisterBenchmark("frame of U, 500 x 500/ours", drawAsIs)->UseManualTime();
    RegisterBenchmark("frame of U beside a fully cached scene/ours", drawAsIs)->UseManualTime();
    RegisterBenchmark("frame of U beside a fully cached scene/cached", drawFullyCached)
        ->UseManualTime();
    RegisterBenchmark("first frame of a new surface/uncached", [](State& state) {
        drawNewSurface(state, SoSeparator::OFF);
    })->UseManualTime();
    RegisterBenchmark("first frame of a new surface/ours", [](State& state) {
        drawNewSurface(state, SoSeparator::ON);
    })->UseManualTime();
    RegisterBenchmark("image of U, 64 x 64, 1800 x 1500/ours", exportImage)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
    return RatioReporter::runAll(argc, argv);
}
