// usage: memory_report
//
// How much memory the whole program holds at the finest grid, beside what its tables and nodes must
// hold, and beside what the libraries take to show such meshes in a bare program.

#include "app/MainWindow.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "tests/support/ResidentMemory.h"
#include "viewer/WindowSystem.h"

#include <Inventor/Qt/SoQt.h>
#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QApplication>
#include <QProcess>
#include <QTest>
#include <cstdio>
#include <malloc.h>
#include <memory>
#include <unistd.h>

namespace {

constexpr int spaces = 3;
constexpr int precision = 500;
constexpr int parameterChanges = 20;

/** Per vertex: position, colour and energy in the model; position and three colours in the nodes.
 */
constexpr double floatsPerVertex = 3 + 3 + 1 + 3 + 3 * 3;

double residentMegabytes() {
    malloc_trim(0);
    return static_cast<double>(residentBytes()) / 1e6;
}

void report(const char* what) {
    std::printf("%-52s %6.0f MB\n", what, residentMegabytes());
    std::fflush(stdout);
}

void changeGrid(MainWindow& window, int grid) {
    window.refresh_hyperboloids(1, 1.5, 1, 0.5, 0.5, 1, 0, 0, grid, grid, 0.3, 7, 7, 0.02, 0.03);
}

void draw() {
    // Long enough for every redraw that is due; nothing is measured but memory.
    constexpr int milliseconds = 1000;
    QTest::qWait(milliseconds);
}

int reportViewer() {
    MainWindow window;
    window.resize(1000, 800);
    window.setUpMainViewer();
    window.show();
    draw();
    report("viewer, 64 x 64");
    changeGrid(window, precision);
    report("viewer, 500 x 500, before it is drawn");
    draw();
    report("viewer, 500 x 500, drawn");
    for (int i = 0; i < parameterChanges; ++i) {
        changeGrid(window, precision);
        draw();
    }
    report("viewer, 500 x 500, after 20 changes of parameters");
    _exit(0);
}

/** The surface with a mesh of the library's own and the library's own choice of caching. */
SoSeparator* withPlainMesh(HyperboloidFrame& frame) {
    const NodePointer<SoSeparator> ours(frame.DrawHyperboloid());
    auto* plain = new SoSeparator;
    for (int i = 0; i + 1 < ours->getNumChildren(); ++i) {
        plain->addChild(ours->getChild(i));
    }
    plain->addChild(SceneNodes::createQuadMesh(precision, precision));
    return plain;
}

/** Three examiner viewers, each with a mesh of the library's own, coloured by vertex. */
int reportBareProgram() {
    std::vector<std::unique_ptr<SoQtExaminerViewer>> viewers;
    QWidget window;
    window.resize(1000, 800);
    for (int space = 0; space < spaces; ++space) {
        auto* area = new QWidget(&window);
        area->setGeometry(500 * (space % 2), 400 * (space / 2), 500, 400);
        viewers.push_back(std::make_unique<SoQtExaminerViewer>(area));
        viewers.back()->setSceneGraph(new SoSeparator);
        viewers.back()->show();
    }
    window.show();
    draw();
    report("bare program, nothing in its views");
    for (const auto& viewer : viewers) {
        HyperboloidFrame frame(1, 1.5F, 1, 0.5F, 0.5F, 1, 0, 0, Hyperboloid::USPACE, true, nullptr);
        frame.set_parameters(1, 1.5, 1, 0.5, 0.5, 1, 0, 0, precision, precision, 0.3, 7, 7, 0.02,
                             0.03);
        frame.init_tables();
        frame.generateHyperboloidPoints(true, true);
        viewer->setSceneGraph(withPlainMesh(frame));
        viewer->viewAll();
    }
    draw();
    report("bare program, three meshes of 500 x 500");
    _exit(0);
}

int reportApart(const char* mode) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start("/proc/self/exe", {mode});
    process.waitForFinished(-1);
    return process.exitCode();
}

} // namespace

int main(int argc, char** argv) {
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode.empty()) {
        const QCoreApplication application(argc, argv);
        std::printf("%-52s %6.0f MB\n", "tables and nodes of three spaces, 500 x 500",
                    spaces * precision * precision * floatsPerVertex * sizeof(float) / 1e6);
        std::fflush(stdout);
        return reportApart("viewer") + reportApart("bare");
    }
    WindowSystem::prepareEnvironment();
    const QApplication application(argc, argv);
    QWidget toolkitWindow;
    SoQt::init(&toolkitWindow);
    return mode == "viewer" ? reportViewer() : reportBareProgram();
}
