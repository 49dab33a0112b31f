#pragma once

class QAction;
class QMainWindow;
class QMdiArea;

/** The main window's commands. The window owns the actions; all are null until created. */
struct Actions {
    QAction* newAct = nullptr;
    QAction* exitAct = nullptr;
    QAction* closeAct = nullptr;
    QAction* closeAllAct = nullptr;
    QAction* tileAct = nullptr;
    QAction* cascadeAct = nullptr;
    QAction* nextAct = nullptr;
    QAction* previousAct = nullptr;
    QAction* separatorAct = nullptr;
    QAction* appearanceAct = nullptr;
    QAction* hyperboloidParamsAct = nullptr;
    QAction* helixParamsAct = nullptr;
    QAction* saveHelixAct = nullptr;
    QAction* saveUAct = nullptr;
    QAction* saveXAct = nullptr;
    QAction* saveMAct = nullptr;
    QAction* saveImageAct = nullptr;
    QAction* aboutAct = nullptr;
    QAction* aboutQtAct = nullptr;

    /**
     * Makes all actions as children of the window and connects them to the slots of the window, of
     * the document area and of the application. Each action's object name is its member's name.
     */
    static Actions create(QMainWindow* window, QMdiArea* mdiArea);
};
