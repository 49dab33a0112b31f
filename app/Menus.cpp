#include "app/Menus.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

QMenu* addMenu(QMenuBar* bar, const char* title) {
    return bar->addMenu(QCoreApplication::translate("MainWindow", title));
}

} // namespace

Menus Menus::create(QMainWindow* window, const Actions& actions) {
    QMenuBar* bar = window->menuBar();
    Menus menus;

    menus.viewerMenu = addMenu(bar, QT_TRANSLATE_NOOP("MainWindow", "&Viewer"));
    menus.viewerMenu->addAction(actions.newAct);
    menus.viewerMenu->addSeparator();
    menus.viewerMenu->addAction(actions.exitAct);

    menus.windowMenu = addMenu(bar, QT_TRANSLATE_NOOP("MainWindow", "&Window"));

    menus.hyperboloidMenu = addMenu(bar, QT_TRANSLATE_NOOP("MainWindow", "Edit Hyperboloid"));
    menus.hyperboloidMenu->addActions({actions.appearanceAct, actions.hyperboloidParamsAct});

    menus.helixMenu = addMenu(bar, QT_TRANSLATE_NOOP("MainWindow", "Edit Helix"));
    menus.helixMenu->addAction(actions.helixParamsAct);

    menus.saveMenu = addMenu(bar, QT_TRANSLATE_NOOP("MainWindow", "Save Data"));
    menus.saveMenu->addActions(
        {actions.saveUAct, actions.saveXAct, actions.saveMAct, actions.saveHelixAct});

    bar->addSeparator();

    menus.helpMenu = addMenu(bar, QT_TRANSLATE_NOOP("MainWindow", "&Help"));
    menus.helpMenu->addActions({actions.aboutAct, actions.aboutQtAct});
    return menus;
}
