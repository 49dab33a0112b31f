// What happens behind the user's actions, drawing left out: the real main window and its frames,
// never shown, so that no view is drawn.

#include "app/MainWindow.h"
#include "bench/WindowBenchmarks.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <Inventor/nodes/SoSeparator.h>
#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <benchmark/benchmark.h>

namespace {

using benchmark::RegisterBenchmark;
using benchmark::State;

constexpr int helixCount = 5;

class HiddenWindow {
public:
    explicit HiddenWindow(int gridSize) {
        window.setUpMainViewer();
        for (int i = 1; i < helixCount; ++i) {
            window.findChild<QAction*>("newAct")->trigger();
        }
        change(gridSize);
        u().SetPreviousHelix(qobject_cast<HelixFrame*>(frame(3)));
    }

    QWidget* frame(int position) const {
        return window.findChild<QMdiArea*>()->subWindowList()[position]->widget();
    }
    HyperboloidFrame& space(int index) const {
        return *qobject_cast<HyperboloidFrame*>(frame(index));
    }
    HyperboloidFrame& u() const { return space(Hyperboloid::USPACE); }

    /** One whole change of parameters, as the parameter dialog applies it. */
    void change(int gridSize) {
        const auto before = static_cast<int>(u().getNumVertices());
        window.refresh_hyperboloids(1, 1.5, 1, 0.5, 0.5, 1, 0, 0, gridSize, gridSize, 0.3, 7, 7,
                                    0.02, 0.03);
        window.refresh_helixs(before);
    }

    void appearanceStep(const char* slot, int value) {
        QMetaObject::invokeMethod(&window, slot, Q_ARG(int, value));
    }

    /** Everything that a change of parameters cannot do without, each of it once. */
    void partsOfAChange() {
        for (int index = 0; index < 3; ++index) {
            space(index).generateHyperboloidPoints(true, true);
            space(index).changeColors();
            const NodePointer<SoSeparator> surface(space(index).DrawHyperboloid());
        }
        for (int helix = 0; helix < helixCount; ++helix) {
            qobject_cast<HelixFrame*>(frame(3 + helix))
                ->refresh(u().getVertex(7, 0), u().getVertex(7, 1), u().getVertex(7, 2), 7, 1, 0,
                          0);
        }
    }

private:
    MainWindow window;
};

void keyStep(State& state, int gridSize) {
    const HiddenWindow hidden(gridSize);
    for ([[maybe_unused]] const auto iteration : state) {
        hidden.u().moveSphere(HyperboloidFrame::LEFT);
    }
}

void registerAppearance(const char* work, const char* slot) {
    RegisterBenchmark((std::string(work) + "/ours").c_str(), [=](State& state) {
        HiddenWindow hidden(500);
        int value = 0;
        for ([[maybe_unused]] const auto iteration : state) {
            value = (value + 1) % 100;
            hidden.appearanceStep(slot, value);
        }
    });
}

void registerAll() {
    RegisterBenchmark("one key step/64 x 64", [](State& state) { keyStep(state, 64); });
    RegisterBenchmark("one key step/500 x 500", [](State& state) { keyStep(state, 500); });
    RegisterBenchmark("change of parameters, 500 x 500, 5 helices/whole", [](State& state) {
        HiddenWindow hidden(500);
        for ([[maybe_unused]] const auto iteration : state) {
            hidden.change(500);
        }
    });
    RegisterBenchmark("change of parameters, 500 x 500, 5 helices/parts", [](State& state) {
        HiddenWindow hidden(500);
        for ([[maybe_unused]] const auto iteration : state) {
            hidden.partsOfAChange();
        }
    });
    registerAppearance("transparency step, 500 x 500", "refreshHyperboloidTransp");
    registerAppearance("lightness step, 500 x 500", "refreshHyperboloidLight");
    registerAppearance("saturation step, 500 x 500", "refreshHyperboloidSat");
}

} // namespace

int main(int argc, char** argv) {
    return WindowBenchmarks::run(argc, argv, registerAll);
}
