// What drawing one frame of a view wholly costs the GUI thread, at the finest grid. With software
// OpenGL the rasteriser's own threads come on top; they are not counted.

#include "app/ImageExport.h"
#include "bench/ShownWindow.h"
#include "bench/WindowBenchmarks.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QApplication>
#include <benchmark/benchmark.h>
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

SoSeparator& surfaceOf(const HyperboloidFrame& frame) {
    auto* branch = static_cast<SoSeparator*>(frame.getSceneRoot()->getChild(3));
    return *static_cast<SoSeparator*>(branch->getChild(branch->getNumChildren() - 1));
}

void drawRepeatedly(State& state, const ShownWindow& shown) {
    SoQtGeneralViewer& viewer = *shown.u().getViewer();
    viewer.render();
    viewer.render();
    for ([[maybe_unused]] const auto iteration : state) {
        const double before = threadSeconds();
        viewer.render();
        state.SetIterationTime(threadSeconds() - before);
    }
}

void drawSurface(State& state, SoSeparator::CacheEnabled caching) {
    const ShownWindow shown(finestGrid, false);
    surfaceOf(shown.u()).renderCaching = caching;
    drawRepeatedly(state, shown);
}

void drawAsIs(State& state) {
    const ShownWindow shown(finestGrid, false);
    drawRepeatedly(state, shown);
}

void drawFullyCached(State& state) {
    const ShownWindow shown(finestGrid, false);
    shown.u().getSceneRoot()->renderCaching = SoSeparator::ON;
    drawRepeatedly(state, shown);
}

/** A frame right after the surface was replaced, as after every step of an appearance slider. */
void drawNewSurface(State& state, SoSeparator::CacheEnabled caching) {
    const ShownWindow shown(finestGrid, false);
    SoQtGeneralViewer& viewer = *shown.u().getViewer();
    viewer.render();
    for ([[maybe_unused]] const auto iteration : state) {
        shown.u().reDraw(false, false);
        surfaceOf(shown.u()).renderCaching = caching;
        const double before = threadSeconds();
        viewer.render();
        state.SetIterationTime(threadSeconds() - before);
    }
}

/** The export of a picture of 1800 x 1500, as the program without a window makes many. */
void exportImage(State& state) {
    const ShownWindow shown(coarseGrid, true);
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

void registerAll() {
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
}

} // namespace

int main(int argc, char** argv) {
    return WindowBenchmarks::run(argc, argv, registerAll);
}
