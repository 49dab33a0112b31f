#pragma once

#include "app/ActiveFrames.h"
#include "app/Commands.h"
#include "app/Documents.h"
#include "app/StatusLabels.h"
#include "app/StatusMessage.h"
#include "app/WindowMenu.h"
#include "viewer/FrameOwner.h"

#include <QMainWindow>
#include <cstdio>
#include <memory>

class HelixFrame;
class HyperboloidFrame;
class QMdiArea;
class QMdiSubWindow;
class SoNode;
class SoQtExaminerViewer;

/**
 * The program's one window: a menu bar, a document area with a sub-window per frame, a status bar.
 *
 * Three hyperboloid frames (U, X and M space) stay from setUpMainViewer() to the end; helix frames
 * come and go. The window carries the user's commands and the frames' reports to where the work is
 * done: the documents, the dialogs and the exports beside this class.
 */
class MainWindow : public QMainWindow, public FrameOwner {
    Q_OBJECT

public:
    /** A window without documents, placed where the last one was closed. */
    MainWindow();
    ~MainWindow() override;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /** Creates the three hyperboloid frames and the first helix; to be called once. */
    void setUpMainViewer();

    /** Removes a dying helix frame's spheres and unties every hyperboloid frame. */
    void SayHypoImDead(SbName name) override;

    /** Shows anew what the status bar says of the documents. */
    void viewerTitleChanged() override;

    /** Number of helix frames alive. */
    int getHelixCount() const { return documents.helixCount(); }

    /**
     * Checks the conditions on K1, K2, K3, K13, K23, the first one first.
     *
     * @return 2 when K13²/K1 + K23²/K2 ≥ K3, 1 when K1 > K2, 0 when the values are valid
     */
    int verify_param(double K1, double K2, double K3, double K13, double K23);

    /** Applies the fifteen parameters to the U, X and M frames, in this order. */
    void refresh_hyperboloids(double K1, double K2, double K3, double K13, double K23, double U1,
                              double U2, double U3, int horizontalPrecision, int verticalPrecision,
                              double pointRadius, double u3constRange, double u3axisRange,
                              double u3constRadius, double u3axisRadius);

    /**
     * Ties every helix to the vertex at the same relative place of a rebuilt grid.
     *
     * @param oldVertexCount number of vertices of the U surface before it was rebuilt
     */
    void refresh_helixs(int oldVertexCount);

    /** Writes a frame's parameters and points to a text file. */
    void saveIn(QString fileName, SoQtGeneralViewerFrame* frame, bool isHyperboloid);

    /**
     * Renders a scene as the viewer shows it, at print resolution, into a PostScript file.
     *
     * @param dotsPerInch the printer's resolution; the size in inches is the viewer's size on the
     *                    screen, cut to whole inches
     * @return whether the picture was rendered and written
     */
    bool printToPostScript(SoNode* root, std::FILE* file, SoQtExaminerViewer* viewer,
                           int dotsPerInch);

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void newViewer();
    void about();
    void updateMenus();
    void updateWindowMenu();
    HelixFrame* createHelix(bool closable = true);
    HyperboloidFrame* createHyperboloid(int space, const char* name);
    void setActiveSubWindow(QWidget* window);
    void closeAllSubWindows();
    /** An empty hook: nothing is connected to it. */
    void changeHyperboloidColor() {}
    void changeHyperboloidTransparency();
    void changeHyperboloidParameters();
    void refreshHyperboloidTransp(int transp);
    void refreshHyperboloidLight(int light);
    void refreshHyperboloidSat(int sat);
    void setHelixParameters();
    void helix_change_radius(int r);
    void helix_change_range(int r);
    void helix_change_nturns(int r);
    void helix_change_precision_line(int r);
    void helix_change_precision_tube(int r);
    void saveHelixData();
    void saveUHyperboloidData();
    void saveXHyperboloidData();
    void saveMHyperboloidData();
    void saveCurrentImage();
    void saveObjData(SoQtGeneralViewerFrame* obj, bool hypo);

private:
    void createActions();
    void createMenus();
    void createStatusBar();
    void readSettings();
    void writeSettings();
    QMdiSubWindow* findMdiChild(const QString& title);
    SoQtGeneralViewerFrame* activeMdiChild();

    QMdiArea* mdiArea;
    ActiveFrames activeFrames;
    Documents documents;
    StatusMessage statusMessage;
    StatusLabels statusLabels;
    Commands commands;
    std::unique_ptr<WindowMenu> windowMenu;
};
