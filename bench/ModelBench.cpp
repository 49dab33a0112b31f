// What the models compute, the plain computation beside ours.

#include "bench/RatioReporter.h"
#include "export/DataExport.h"
#include "helix/Helix.h"
#include "hyperboloid/Hyperboloid.h"
#include "scene/SceneNodes.h"
#include "tests/reference/PlainDataExport.h"
#include "tests/reference/PlainHelix.h"
#include "tests/reference/PlainHyperboloid.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoDB.h>
#include <Inventor/SoInteraction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>
#include <sstream>

namespace {

using benchmark::RegisterBenchmark;
using benchmark::State;

constexpr const char* spaceNames[] = {"U", "X", "M"};

PlainHyperboloid::Parameters plainParameters(int space, unsigned int size) {
    return {1, 1.5, 1, 0.5, 0.5, 1, 0, 0, space, size, size};
}

/** A model of the start-up shape on a square grid. */
class GridModel : public Hyperboloid {
public:
    GridModel(int whichSpace, int size)
        : Hyperboloid(1, 1.5F, 1, 0.5F, 0.5F, 1, 0, 0, whichSpace) {
        set_parameters(1, 1.5, 1, 0.5, 0.5, 1, 0, 0, size, size, 0.3, 7, 7, 0.02, 0.03);
        init_tables();
        generateHyperboloidPoints(true, true);
    }
};

void registerSurface(int space, int size) {
    const std::string work = std::string("surface in ") + spaceNames[space] + " space, " +
                             std::to_string(size) + " x " + std::to_string(size);
    RegisterBenchmark((work + "/plain").c_str(), [=](State& state) {
        PlainHyperboloid plain(plainParameters(space, static_cast<unsigned int>(size)));
        for ([[maybe_unused]] const auto iteration : state) {
            plain.generate();
        }
    });
    RegisterBenchmark((work + "/ours").c_str(), [=](State& state) {
        GridModel model(space, size);
        for ([[maybe_unused]] const auto iteration : state) {
            model.generateHyperboloidPoints(true, true);
        }
    });
}

void registerRecolouring() {
    RegisterBenchmark("recolouring, 500 x 500/plain", [](State& state) {
        PlainHyperboloid plain(plainParameters(0, 500));
        plain.generate();
        for ([[maybe_unused]] const auto iteration : state) {
            plain.recolor();
        }
    });
    RegisterBenchmark("recolouring, 500 x 500/ours", [](State& state) {
        GridModel model(Hyperboloid::USPACE, 500);
        for ([[maybe_unused]] const auto iteration : state) {
            model.generateHyperboloidPoints(false, true);
        }
    });
}

/** A helix of the given sampling, as the helix window makes it. */
Helix sampledHelix(int precisionLine, float turns, int precisionTube) {
    Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    helix.setPrecisionLine(precisionLine);
    helix.setNTurns(turns);
    helix.setPrecisionTube(precisionTube);
    helix.init_tables(true, true, true);
    return helix;
}

void registerHelix(const char* work, int precisionLine, float turns, int precisionTube) {
    RegisterBenchmark((std::string(work) + "/plain").c_str(), [=](State& state) {
        PlainHelix plain(1, 0.5F, 0.25F, 1, 0, 0);
        plain.precisionLine = static_cast<unsigned int>(precisionLine);
        plain.nTurns = turns;
        plain.nbLineVertices = static_cast<unsigned int>(static_cast<float>(precisionLine) * turns);
        plain.precisionTube = static_cast<unsigned int>(precisionTube);
        plain.init_tables(true, true, true);
        for ([[maybe_unused]] const auto iteration : state) {
            plain.generatePoints(true, true, true);
        }
    });
    RegisterBenchmark((std::string(work) + "/ours").c_str(), [=](State& state) {
        Helix helix = sampledHelix(precisionLine, turns, precisionTube);
        for ([[maybe_unused]] const auto iteration : state) {
            helix.generatePoints(true, true, true);
        }
    });
}

void registerNodes() {
    RegisterBenchmark("nodes of the surface, 500 x 500/ours", [](State& state) {
        GridModel model(Hyperboloid::USPACE, 500);
        for ([[maybe_unused]] const auto iteration : state) {
            const NodePointer<SoSeparator> surface(model.DrawHyperboloid());
        }
    });
}

/** Picks with a ray through the surface, over and over. */
void pickRepeatedly(State& state, SoNode& scene, const Hyperboloid& model) {
    const int target = 500 * 100 + 300;
    const SbVec3f from(3, 4, 40);
    const SbVec3f vertex(model.getVertex(target, 0), model.getVertex(target, 1),
                         model.getVertex(target, 2));
    for ([[maybe_unused]] const auto iteration : state) {
        SoRayPickAction action(SbViewportRegion(400, 300));
        action.setRay(from, vertex * 0.99F - from);
        action.apply(&scene);
        benchmark::DoNotOptimize(action.getPickedPoint());
    }
}

void registerPick(int space) {
    const std::string work = std::string("one pick in ") + spaceNames[space] + " space, 500 x 500";
    RegisterBenchmark((work + "/plain").c_str(), [=](State& state) {
        GridModel model(space, 500);
        const NodePointer<SoSeparator> surface(model.DrawHyperboloid());
        surface->replaceChild(3, SceneNodes::createQuadMesh(500, 500));
        pickRepeatedly(state, *surface, model);
    });
    RegisterBenchmark((work + "/ours").c_str(), [=](State& state) {
        GridModel model(space, 500);
        const NodePointer<SoSeparator> surface(model.DrawHyperboloid());
        pickRepeatedly(state, *surface, model);
    });
}

template <typename Write>
void exportRepeatedly(State& state, Write write) {
    const GridModel model(Hyperboloid::USPACE, 500);
    for ([[maybe_unused]] const auto iteration : state) {
        std::ostringstream text;
        write(text, model);
        benchmark::DoNotOptimize(text);
    }
}

void registerExport() {
    RegisterBenchmark("text of the U surface, 500 x 500/plain", [](State& state) {
        exportRepeatedly(state, PlainDataExport::writeHyperboloid);
    });
    RegisterBenchmark("text of the U surface, 500 x 500/ours",
                      [](State& state) { exportRepeatedly(state, DataExport::writeHyperboloid); });
}

} // namespace

int main(int argc, char** argv) {
    SoDB::init();
    SoInteraction::init();
    for (const int size : {64, 200, 500}) {
        for (int space = 0; space < 3; ++space) {
            registerSurface(space, size);
        }
    }
    registerRecolouring();
    registerHelix("default helix, 250 x 16", 50, 5, 16);
    registerHelix("largest helix, 2000 x 100", 200, 10, 100);
    registerNodes();
    for (int space = 0; space < 3; ++space) {
        registerPick(space);
    }
    registerExport();
    return RatioReporter::runAll(argc, argv);
}
