#pragma once

#include "app/Actions.h"

class QMainWindow;
class QMenu;

/** The menus of the main window's menu bar, which owns them; all are null until created. */
struct Menus {
    QMenu* viewerMenu = nullptr;
    QMenu* windowMenu = nullptr;
    QMenu* hyperboloidMenu = nullptr;
    QMenu* helixMenu = nullptr;
    QMenu* saveMenu = nullptr;
    QMenu* helpMenu = nullptr;

    /** Fills the window's menu bar; the "&Window" menu is left empty for the window to fill. */
    static Menus create(QMainWindow* window, const Actions& actions);
};
