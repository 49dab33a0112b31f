#include "app/MainWindow.h"

#include "app/AppearanceWindow.h"
#include "app/DataExport.h"
#include "app/DocumentRepaint.h"
#include "app/HelixWindow.h"
#include "app/HyperboloidParameterDialog.h"
#include "app/ImageExport.h"
#include "app/Messages.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/nodes/SoSeparator.h>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QSignalMapper>
#include <QStatusBar>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>

namespace {

constexpr QPoint defaultPosition(200, 200);
constexpr QSize defaultSize(400, 400);
constexpr int printerDotsPerInch = 300;

constexpr const char* organisation = "Trolltech";
constexpr const char* application = "MDI Viewer";

/** Results of MainWindow::verify_param(). */
constexpr int valid = 0;
constexpr int brokenOrder = 1;
constexpr int brokenQuadric = 2;

SoQtGeneralViewerFrame* frameIn(const QMdiSubWindow* subWindow) {
    return subWindow == nullptr ? nullptr
                                : qobject_cast<SoQtGeneralViewerFrame*>(subWindow->widget());
}

/** Half a picture might pass for a whole one. What is no file of its own, a device say, stays. */
void removeHalfWritten(const QString& fileName) {
    const QFileInfo target(fileName);
    if (target.isFile() && !target.isSymLink()) {
        QFile::remove(fileName);
    }
}

} // namespace

MainWindow::MainWindow()
    : mdiArea(new QMdiArea)
    , windowMapper(new QSignalMapper(this))
    , placeholders{{{true, nullptr}, {true, nullptr}}} {
    currentFrame = &placeholders[0];
    previousFrame = &placeholders[1];

    mdiArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdiArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(mdiArea);
    connect(mdiArea, SIGNAL(subWindowActivated(QMdiSubWindow*)), this, SLOT(updateMenus()));
    connect(windowMapper, SIGNAL(mapped(QWidget*)), this, SLOT(setActiveSubWindow(QWidget*)));

    createActions();
    createMenus();
    createStatusBar();
    updateMenus();
    setWindowTitle(tr("Visualisation of Torvane"));
    setUnifiedTitleAndToolBarOnMac(true);
    readSettings();
}

MainWindow::~MainWindow() {
    // Frames report to this window when they die: while it is whole. Those that have been closed
    // may be waiting for the event loop to delete them; only the area's list has forgotten them.
    disconnect(mdiArea, nullptr, this, nullptr);
    qDeleteAll(mdiArea->findChildren<QMdiSubWindow*>());
}

void MainWindow::createActions() {
    actions = Actions::create(this, mdiArea);
}

void MainWindow::createMenus() {
    menus = Menus::create(this, actions);
    updateWindowMenu();
    connect(menus.windowMenu, SIGNAL(aboutToShow()), this, SLOT(updateWindowMenu()));
}

void MainWindow::createStatusBar() {
    steeredHelixLabel = new QLabel;
    steeredHelixLabel->setObjectName("steeredHelixLabel");
    viewerTitleLabel = new QLabel;
    viewerTitleLabel->setObjectName("viewerTitleLabel");
    statusBar()->addPermanentWidget(steeredHelixLabel);
    statusBar()->addPermanentWidget(viewerTitleLabel);
    statusBar()->showMessage(tr("Ready"));
}

void MainWindow::readSettings() {
    const QSettings settings(organisation, application);
    const QVariant position = settings.value("pos");
    move(position.type() == QVariant::Point ? position.toPoint() : defaultPosition);
    const QSize size = settings.value("size").toSize();
    resize(size.isValid() ? size : defaultSize);
}

void MainWindow::writeSettings() {
    QSettings settings(organisation, application);
    settings.setValue("pos", pos());
    settings.setValue("size", size());
}

void MainWindow::setUpMainViewer() {
    hyperboloidFrames[0] = createHyperboloid(Hyperboloid::USPACE, "In U Space");
    hyperboloidFrames[1] = createHyperboloid(Hyperboloid::XSPACE, "In X Space");
    hyperboloidFrames[2] = createHyperboloid(Hyperboloid::MSPACE, "In M Space");
    const auto& [u, x, m] = hyperboloidFrames;
    for (const auto& frame : hyperboloidFrames) {
        frame->setBrother(u, x, m);
    }
    // Becoming brothers has done this already; once more, so that X and M surely wear U's colours.
    x->changeColors();
    m->changeColors();
    x->reDraw(false, false);
    m->reDraw(false, false);

    for (const auto& frame : hyperboloidFrames) {
        frame->show();
    }
    mdiArea->setActiveSubWindow(nullptr);
    mdiArea->setActiveSubWindow(mdiArea->subWindowList().constFirst());
    newViewer();
    mdiArea->tileSubWindows();
}

void MainWindow::addDocument(SoQtGeneralViewerFrame* frame, const char* viewerTitle) {
    // Its viewer shows the frame while that has no parent yet. On the screen it would flash, and a
    // window manager that takes it in hand while it moves into the area can destroy it.
    frame->setAttribute(Qt::WA_DontShowOnScreen);
    frame->initialize();
    frame->setTitle(viewerTitle);
    new DocumentRepaint(mdiArea->addSubWindow(frame));
    frame->setAttribute(Qt::WA_DontShowOnScreen, false);
}

HyperboloidFrame* MainWindow::createHyperboloid(int space, const char* name) {
    auto* frame =
        new HyperboloidFrame(1.0F, 1.5F, 1.0F, 0.5F, 0.5F, 1.0F, 0.0F, 0.0F, space, false, this);
    addDocument(frame, name);
    return frame;
}

HelixFrame* MainWindow::createHelix(bool closable) {
    const Hyperboloid& u = *hyperboloidFrames[0];
    auto* frame =
        new HelixFrame(u.getVertex(0, 0), u.getVertex(0, 1), u.getVertex(0, 2), u.getColor(0, 0),
                       u.getColor(0, 1), u.getColor(0, 2), 0, closable, this);
    addDocument(frame, "Helix Viewer");
    ++helixCount;
    return frame;
}

void MainWindow::newViewer() {
    if (!hyperboloidFrames[0]) {
        return;
    }
    HelixFrame* helix = createHelix(true);
    helix->show();
    for (const auto& frame : hyperboloidFrames) {
        frame->addNewSphere(helix->getName(), 0);
    }
    // By way of no window and the U frame, so that both steps are heard: the new helix ends up as
    // the current frame and the U frame as the previous one.
    mdiArea->setActiveSubWindow(nullptr);
    mdiArea->setActiveSubWindow(mdiArea->subWindowList().constFirst());
    mdiArea->setActiveSubWindow(mdiArea->subWindowList().constLast());
}

std::vector<HyperboloidFrame*> MainWindow::openHyperboloids() const {
    std::vector<HyperboloidFrame*> open;
    std::copy_if(hyperboloidFrames.begin(), hyperboloidFrames.end(), std::back_inserter(open),
                 [](const auto& frame) { return !frame.isNull(); });
    return open;
}

void MainWindow::SayHypoImDead(SbName name) {
    // On purpose every frame forgets its helix, whichever helix died.
    for (HyperboloidFrame* frame : openHyperboloids()) {
        frame->killSphere(name);
        frame->PrevHelixDead();
    }
    --helixCount;
    viewerTitleChanged();
}

void MainWindow::viewerTitleChanged() {
    const SoQtGeneralViewerFrame* active = frameIn(mdiArea->activeSubWindow());
    const auto* hyperboloid = qobject_cast<const HyperboloidFrame*>(active);
    const HelixFrame* steered = hyperboloid == nullptr ? nullptr : hyperboloid->GetPreviousHelix();
    steeredHelixLabel->setText(
        steered == nullptr ? QString()
                           : tr("%1: %2").arg(steered->windowTitle(), steered->viewerTitle()));
    viewerTitleLabel->setText(active == nullptr ? QString() : active->viewerTitle());
}

void MainWindow::updateMenus() {
    SoQtGeneralViewerFrame* active = frameIn(mdiArea->activeSubWindow());
    for (QAction* action :
         {actions.closeAct, actions.closeAllAct, actions.tileAct, actions.cascadeAct}) {
        action->setEnabled(active != nullptr);
    }
    const bool severalFrames = mdiArea->subWindowList().size() >= 2;
    actions.nextAct->setEnabled(severalFrames);
    actions.previousAct->setEnabled(severalFrames);

    if (active != nullptr) {
        previousFrame = currentFrame;
        currentFrame = active;
        // Activating a hyperboloid directly after a helix lets the hyperboloid steer this helix.
        if (previousFrame && currentFrame->GetType() == HyperboloidFrame::Type() &&
            previousFrame->GetType() == HelixFrame::Type()) {
            qobject_cast<HyperboloidFrame*>(currentFrame)
                ->SetPreviousHelix(qobject_cast<HelixFrame*>(previousFrame));
        }
    }
    viewerTitleChanged();
}

void MainWindow::updateWindowMenu() {
    QMenu* menu = menus.windowMenu;
    menu->clear();
    menu->addActions({actions.closeAct, actions.closeAllAct});
    menu->addSeparator();
    menu->addActions({actions.tileAct, actions.cascadeAct});
    menu->addSeparator();
    menu->addActions({actions.nextAct, actions.previousAct, actions.separatorAct});

    int position = 0;
    for (QMdiSubWindow* subWindow : mdiArea->subWindowList()) {
        ++position;
        QAction* action =
            menu->addAction(tr("&%1 %2").arg(position).arg(frameIn(subWindow)->windowTitle()));
        action->setCheckable(true);
        action->setChecked(subWindow == mdiArea->activeSubWindow());
        connect(action, SIGNAL(triggered()), windowMapper, SLOT(map()));
        windowMapper->setMapping(action, subWindow);
    }
}

void MainWindow::about() {
    QMessageBox::about(this, tr("About MDI"),
                       tr("The <b>Lumarin</b> example shows how to use multiple Coin3D viewers "
                          "with SoQt."));
}

SoQtGeneralViewerFrame* MainWindow::activeMdiChild() {
    return frameIn(mdiArea->activeSubWindow());
}

QMdiSubWindow* MainWindow::findMdiChild(const QString& title) {
    for (QMdiSubWindow* subWindow : mdiArea->subWindowList()) {
        if (frameIn(subWindow)->windowTitle() == title) {
            return subWindow;
        }
    }
    return nullptr;
}

void MainWindow::setActiveSubWindow(QWidget* window) {
    if (window != nullptr) {
        mdiArea->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(window));
    }
}

void MainWindow::closeAllSubWindows() {
    // The hyperboloid frames refuse to be closed alone, so only helices go.
    for (QMdiSubWindow* subWindow : mdiArea->subWindowList()) {
        if (frameIn(subWindow)->getId() != 0) {
            mdiArea->setActiveSubWindow(subWindow);
            mdiArea->closeActiveSubWindow();
        }
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    // Helices first: each one that dies takes its spheres out of the hyperboloid frames.
    mdiArea->closeAllSubWindows();
    for (HyperboloidFrame* frame : openHyperboloids()) {
        frame->setClosableAlone(true);
    }
    mdiArea->closeAllSubWindows();
    if (mdiArea->currentSubWindow() != nullptr) {
        event->ignore();
        return;
    }
    writeSettings();
    event->accept();
}

HelixFrame* MainWindow::currentHelix() const {
    return qobject_cast<HelixFrame*>(currentFrame);
}

void MainWindow::setHelixParameters() {
    const HelixFrame* frame = currentHelix();
    if (frame == nullptr) {
        Messages::selectHelixViewer();
        return;
    }
    auto* window = new HelixWindow(frame->getHelix(), this);
    window->show();
}

// A helix window may outlive its helix and stay open beside another kind of document: then there is
// no current helix and its changes go nowhere.

void MainWindow::helix_change_radius(int r) {
    if (HelixFrame* frame = currentHelix()) {
        frame->set_tube_radius(r / HelixWindow::stepsPerUnit, true);
    }
}

void MainWindow::helix_change_range(int r) {
    if (HelixFrame* frame = currentHelix()) {
        frame->set_ribbon_range(r / HelixWindow::stepsPerUnit, true);
    }
}

void MainWindow::helix_change_nturns(int r) {
    if (HelixFrame* frame = currentHelix()) {
        frame->set_nturns(r, true);
    }
}

void MainWindow::helix_change_precision_line(int r) {
    if (HelixFrame* frame = currentHelix()) {
        frame->set_precision_line(r, true);
    }
}

void MainWindow::helix_change_precision_tube(int r) {
    if (HelixFrame* frame = currentHelix()) {
        frame->set_precision_tube(r, true);
    }
}

void MainWindow::refresh_helixs(int oldVertexCount) {
    HyperboloidFrame& u = *hyperboloidFrames[0];
    const QPointer<HelixFrame> tiedHelix = u.GetPreviousHelix();
    const double vertexCount = u.getNumVertices();
    for (const QMdiSubWindow* subWindow : mdiArea->subWindowList()) {
        auto* helix = qobject_cast<HelixFrame*>(frameIn(subWindow));
        if (helix == nullptr) {
            continue;
        }
        const double place = static_cast<double>(helix->getIndex()) / oldVertexCount;
        const auto index = static_cast<int>(vertexCount * place);
        for (const auto& frame : hyperboloidFrames) {
            frame->SetPreviousHelix(helix);
            frame->refresh_spheres(index);
            frame->refresh_helix(index);
        }
    }
    for (const auto& frame : hyperboloidFrames) {
        frame->SetPreviousHelix(tiedHelix);
    }
    viewerTitleChanged();
}

int MainWindow::verify_param(double K1, double K2, double K3, double K13, double K23) {
    const double s = K13 * K13 / K1 + K23 * K23 / K2;
    if (s >= K3) {
        return brokenQuadric;
    }
    return K1 > K2 ? brokenOrder : valid;
}

void MainWindow::changeHyperboloidParameters() {
    // Refused values are not kept: each new dialog starts from the model.
    while (hyperboloidFrames[0]) {
        HyperboloidParameterDialog dialog(HyperboloidParameters::of(*hyperboloidFrames[0]), this);
        if (dialog.exec() != QDialog::Accepted) {
            return;
        }
        const HyperboloidParameters p = dialog.parameters();
        const int broken = verify_param(p.K1, p.K2, p.K3, p.K13, p.K23);
        if (broken == valid) {
            const auto oldVertexCount = static_cast<int>(hyperboloidFrames[0]->getNumVertices());
            refresh_hyperboloids(p.K1, p.K2, p.K3, p.K13, p.K23, p.U1, p.U2, p.U3,
                                 p.horizontalPrecision, p.verticalPrecision, p.pointRadius,
                                 p.u3constRange, p.u3axisRange, p.u3constRadius, p.u3axisRadius);
            refresh_helixs(oldVertexCount);
            return;
        }
        Messages::brokenCondition(
            broken == brokenQuadric ? ":/images/err1.png" : ":/images/err2.png", this);
        if (!isVisible()) {
            // The program is ending: the window was closed while the message was up.
            return;
        }
    }
}

void MainWindow::refresh_hyperboloids(double K1, double K2, double K3, double K13, double K23,
                                      double U1, double U2, double U3, int horizontalPrecision,
                                      int verticalPrecision, double pointRadius,
                                      double u3constRange, double u3axisRange, double u3constRadius,
                                      double u3axisRadius) {
    // U comes first: the X and M frames take their colours from it.
    for (const auto& frame : hyperboloidFrames) {
        frame->set_parameters(K1, K2, K3, K13, K23, U1, U2, U3, horizontalPrecision,
                              verticalPrecision, pointRadius, u3constRange, u3axisRange,
                              u3constRadius, u3axisRadius);
        frame->reDraw(true, true);
    }
}

void MainWindow::changeHyperboloidTransparency() {
    if (!hyperboloidFrames[0]) {
        return;
    }
    auto* window = new AppearanceWindow(*hyperboloidFrames[0], this);
    window->setVisible(true);
}

void MainWindow::refreshHyperboloidTransp(int transp) {
    for (HyperboloidFrame* frame : openHyperboloids()) {
        frame->setTransparency(transp, true);
    }
}

void MainWindow::refreshHyperboloidLight(int light) {
    for (HyperboloidFrame* frame : openHyperboloids()) {
        frame->setLightness(light, true);
    }
}

void MainWindow::refreshHyperboloidSat(int sat) {
    for (HyperboloidFrame* frame : openHyperboloids()) {
        frame->setSaturation(sat, true);
    }
}

// An empty hook: nothing is connected to it.
void MainWindow::changeHyperboloidColor() {}

void MainWindow::saveHelixData() {
    if (HelixFrame* frame = currentHelix()) {
        saveObjData(frame, false);
    } else {
        Messages::selectHelixViewer();
    }
}

void MainWindow::saveUHyperboloidData() {
    saveObjData(hyperboloidFrames[0], true);
}

void MainWindow::saveXHyperboloidData() {
    saveObjData(hyperboloidFrames[1], true);
}

void MainWindow::saveMHyperboloidData() {
    saveObjData(hyperboloidFrames[2], true);
}

void MainWindow::saveObjData(SoQtGeneralViewerFrame* obj, bool hypo) {
    if (obj == nullptr) {
        return;
    }
    // The frame may be closed while the user chooses the file.
    const QPointer<SoQtGeneralViewerFrame> frame(obj);
    const QString fileName = Messages::askForFileToSave(
        QCoreApplication::translate("QMainWindow", "Text (*.txt)"), "txt", this);
    if (!fileName.isEmpty() && frame) {
        saveIn(fileName, frame, hypo);
    }
}

void MainWindow::saveIn(QString fileName, SoQtGeneralViewerFrame* frame, bool isHyperboloid) {
    // On purpose a file that cannot be opened is not reported: the stream has failed and stays so.
    std::ofstream file(QFile::encodeName(fileName).constData());
    if (isHyperboloid) {
        DataExport::writeHyperboloid(file, *qobject_cast<HyperboloidFrame*>(frame));
    } else {
        DataExport::writeHelix(file, qobject_cast<HelixFrame*>(frame)->getHelix());
    }
}

void MainWindow::saveCurrentImage() {
    if (!currentFrame || currentFrame->getViewer() == nullptr) {
        Messages::warn(tr("Select a Viewer"), this);
        return;
    }
    const QPointer<SoQtGeneralViewerFrame> frame(currentFrame);
    const QString fileName = Messages::askForFileToSave(
        QCoreApplication::translate("QMainWindow", "PostScript (*.eps)"), "eps", this);
    if (fileName.isEmpty() || !frame) {
        return;
    }
    std::FILE* file = std::fopen(QFile::encodeName(fileName).constData(), "w");
    if (file == nullptr) {
        Messages::warn(tr("The file %1 cannot be written.").arg(fileName), this);
        return;
    }
    const bool rendered =
        printToPostScript(frame->getSceneRoot(), file, frame->getViewer(), printerDotsPerInch);
    const bool closed = std::fclose(file) == 0;
    const bool written = rendered && closed;
    if (!written) {
        std::cerr << "The image cannot be rendered or written." << std::endl;
        removeHalfWritten(fileName);
    }
    std::cout << "ok? " << written << std::endl;
}

bool MainWindow::printToPostScript(SoNode* root, std::FILE* file, SoQtExaminerViewer* viewer,
                                   int dotsPerInch) {
    return ImageExport::printToPostScript(root, file, viewer, dotsPerInch);
}
