#include "app/WindowMenu.h"

#include <QCoreApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

WindowMenu::WindowMenu(QMenu& menu, const QMdiArea& documentArea)
    : windowMenu(menu)
    , area(documentArea) {}

void WindowMenu::update() {
    qDeleteAll(entries);
    entries.clear();
    const QString text = QCoreApplication::translate("MainWindow", "&%1 %2");
    for (QMdiSubWindow* subWindow : area.subWindowList()) {
        const int position = entries.size() + 1;
        QAction* entry =
            windowMenu.addAction(text.arg(position).arg(subWindow->widget()->windowTitle()));
        entries.append(entry);
        entry->setCheckable(true);
        entry->setChecked(subWindow == area.activeSubWindow());
        QObject::connect(entry, SIGNAL(triggered()), &windowMapper, SLOT(map()));
        windowMapper.setMapping(entry, subWindow);
    }
}
