#include "app/MainWindow.h"

#include "app/AppearanceWindow.h"
#include "app/DocumentSaving.h"
#include "app/HelixChanges.h"
#include "app/HelixWindow.h"
#include "app/HyperboloidParameterDialog.h"
#include "app/ImageExport.h"
#include "app/Messages.h"
#include "app/WindowPlace.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

MainWindow::MainWindow()
    : mdiArea(new QMdiArea)
    , documents(*mdiArea, *this)
    , statusMessage(*this)
    , statusLabels(*statusBar()) {
    setCentralWidget(mdiArea);
    connect(mdiArea, SIGNAL(subWindowActivated(QMdiSubWindow*)), this, SLOT(updateMenus()));

    createActions();
    createMenus();
    createStatusBar();
    updateMenus();
    setWindowTitle(tr("Visualisation of Torvane"));
    setUnifiedTitleAndToolBarOnMac(true);
    readSettings();
}

MainWindow::~MainWindow() {
    // Frames report to this window when they die: while it is whole.
    disconnect(mdiArea, nullptr, this, nullptr);
    documents.destroyAll();
}

void MainWindow::createActions() {
    commands = Commands::create(this, mdiArea);
    // The area cascades in the order of creation, and leaves on top what was there before.
    connect(findChild<QAction*>("cascadeAct"), &QAction::triggered, this,
            [this] { documents.stackInOrder(); });
}

void MainWindow::createMenus() {
    windowMenu = std::make_unique<WindowMenu>(*commands.addMenus(menuBar()), *mdiArea, this);
    connect(&windowMenu->mapper(), SIGNAL(mapped(QWidget*)), this,
            SLOT(setActiveSubWindow(QWidget*)));
    updateWindowMenu();
    connect(&windowMenu->menu(), SIGNAL(aboutToShow()), this, SLOT(updateWindowMenu()));
}

void MainWindow::createStatusBar() {
    statusMessage.say(tr("Ready"));
}

void MainWindow::readSettings() {
    WindowPlace::restore(*this);
}

void MainWindow::writeSettings() {
    WindowPlace::store(*this);
}

void MainWindow::setUpMainViewer() {
    documents.setUp();
}

HyperboloidFrame* MainWindow::createHyperboloid(int space, const char* name) {
    return documents.createHyperboloid(space, name);
}

HelixFrame* MainWindow::createHelix(bool closable) {
    return documents.createHelix(closable);
}

void MainWindow::newViewer() {
    documents.openHelix();
}

void MainWindow::SayHypoImDead(SbName name) {
    documents.helixDied(name);
    viewerTitleChanged();
}

void MainWindow::viewerTitleChanged() {
    statusLabels.show(documents.active());
    statusLabels.showSurfaces(documents.hyperboloids().open());
}

void MainWindow::updateMenus() {
    SoQtGeneralViewerFrame* active = documents.active();
    commands.updateEnabled(active != nullptr, documents.count());
    activeFrames.activate(active);
    viewerTitleChanged();
}

void MainWindow::updateWindowMenu() {
    windowMenu->update();
}

void MainWindow::about() {
    Messages::about(this);
}

SoQtGeneralViewerFrame* MainWindow::activeMdiChild() {
    return documents.active();
}

QMdiSubWindow* MainWindow::findMdiChild(const QString& title) {
    return documents.find(title);
}

void MainWindow::setActiveSubWindow(QWidget* window) {
    documents.activate(window);
}

void MainWindow::closeAllSubWindows() {
    documents.closeHelices();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(documents.closeAll());
    if (event->isAccepted()) {
        writeSettings();
    }
}

void MainWindow::setHelixParameters() {
    if (const HelixFrame* frame = activeFrames.currentHelix()) {
        (new HelixWindow(frame->getHelix(), this))->show();
    } else {
        Messages::selectHelixViewer();
    }
}

void MainWindow::helix_change_radius(int r) {
    HelixChanges::setTubeRadius(activeFrames.currentHelix(), r);
}

void MainWindow::helix_change_range(int r) {
    HelixChanges::setRibbonRange(activeFrames.currentHelix(), r);
}

void MainWindow::helix_change_nturns(int r) {
    HelixChanges::setTurns(activeFrames.currentHelix(), r);
}

void MainWindow::helix_change_precision_line(int r) {
    HelixChanges::setLinePrecision(activeFrames.currentHelix(), r);
}

void MainWindow::helix_change_precision_tube(int r) {
    HelixChanges::setTubePrecision(activeFrames.currentHelix(), r);
}

void MainWindow::refresh_helixs(int oldVertexCount) {
    documents.hyperboloids().keepInPlace(documents.helices(), oldVertexCount);
    viewerTitleChanged();
}

int MainWindow::verify_param(double K1, double K2, double K3, double K13, double K23) {
    return static_cast<int>(HyperboloidParameters{K1, K2, K3, K13, K23}.brokenCondition());
}

void MainWindow::changeHyperboloidParameters() {
    const HyperboloidFrame* u = documents.hyperboloids().of(Hyperboloid::USPACE);
    const auto accepted =
        HyperboloidParameterDialog::ask(u, this, [this](const auto& refused, const auto& kept) {
            statusLabels.showRefused(refused, kept);
        });
    statusLabels.clearRefused();
    if (accepted) {
        const auto oldVertexCount = static_cast<int>(u->getNumVertices());
        documents.hyperboloids().setParameters(*accepted);
        refresh_helixs(oldVertexCount);
    }
}

void MainWindow::refresh_hyperboloids(double K1, double K2, double K3, double K13, double K23,
                                      double U1, double U2, double U3, int horizontalPrecision,
                                      int verticalPrecision, double pointRadius,
                                      double u3constRange, double u3axisRange, double u3constRadius,
                                      double u3axisRadius) {
    documents.hyperboloids().setParameters({K1, K2, K3, K13, K23, U1, U2, U3, horizontalPrecision,
                                            verticalPrecision, pointRadius, u3constRange,
                                            u3axisRange, u3constRadius, u3axisRadius});
    viewerTitleChanged();
}

void MainWindow::changeHyperboloidTransparency() {
    if (const HyperboloidFrame* u = documents.hyperboloids().of(Hyperboloid::USPACE)) {
        (new AppearanceWindow(*u, this))->setVisible(true);
    }
}

void MainWindow::refreshHyperboloidTransp(int transp) {
    documents.hyperboloids().setTransparency(transp);
}

void MainWindow::refreshHyperboloidLight(int light) {
    documents.hyperboloids().setLightness(light);
}

void MainWindow::refreshHyperboloidSat(int sat) {
    documents.hyperboloids().setSaturation(sat);
}

void MainWindow::saveHelixData() {
    if (HelixFrame* frame = activeFrames.currentHelix()) {
        saveObjData(frame, false);
    } else {
        Messages::selectHelixViewer();
    }
}

void MainWindow::saveUHyperboloidData() {
    saveObjData(documents.hyperboloids().of(Hyperboloid::USPACE), true);
}

void MainWindow::saveXHyperboloidData() {
    saveObjData(documents.hyperboloids().of(Hyperboloid::XSPACE), true);
}

void MainWindow::saveMHyperboloidData() {
    saveObjData(documents.hyperboloids().of(Hyperboloid::MSPACE), true);
}

void MainWindow::saveObjData(SoQtGeneralViewerFrame* obj, bool hypo) {
    statusMessage.say(DocumentSaving::saveText(obj, hypo, this));
}

void MainWindow::saveIn(QString fileName, SoQtGeneralViewerFrame* frame, bool isHyperboloid) {
    statusMessage.say(DocumentSaving::writeText(fileName, *frame, isHyperboloid));
}

void MainWindow::saveCurrentImage() {
    statusMessage.say(DocumentSaving::saveImage(activeFrames.current(), this));
}

bool MainWindow::printToPostScript(SoNode* root, std::FILE* file, SoQtExaminerViewer* viewer,
                                   int dotsPerInch) {
    return ImageExport::printToPostScript(root, file, viewer, dotsPerInch);
}
