#include "app/WindowMenu.h"

#include <QCoreApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

WindowMenu::WindowMenu(QMenu& menu, const QMdiArea& documentArea, QObject* owner)
    : windowMenu(menu)
    , area(documentArea)
    , commands(menu.actions())
    , windowMapper(owner) {}

void WindowMenu::update() {
    windowMenu.clear();
    windowMenu.addActions(commands);
    const QString text = QCoreApplication::translate("MainWindow", "&%1 %2");
    int position = 0;
    for (QMdiSubWindow* subWindow : area.subWindowList()) {
        ++position;
        QAction* entry =
            windowMenu.addAction(text.arg(position).arg(subWindow->widget()->windowTitle()));
        entry->setCheckable(true);
        entry->setChecked(subWindow == area.activeSubWindow());
        QObject::connect(entry, SIGNAL(triggered()), &windowMapper, SLOT(map()));
        windowMapper.setMapping(entry, subWindow);
    }
}
