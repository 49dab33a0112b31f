#pragma once

#include <QList>
#include <QSignalMapper>

class QAction;
class QMdiArea;
class QMenu;

/** The menu that lists the open documents below its commands and lets the user jump to one. */
class WindowMenu {
public:
    /**
     * The list goes below what the menu holds now, which stays.
     *
     * @param owner the object that owns the menu's commands, and the mapper as well
     */
    WindowMenu(QMenu& menu, const QMdiArea& documentArea, QObject* owner);

    /**
     * Empties the menu and fills it anew: the commands, then the documents in the order of their
     * creation, each as "&1 " and the frame's title, the active one checked.
     */
    void update();

    QMenu& menu() const { return windowMenu; }

    /** Emits mapped(QWidget*) with the sub-window of an entry that the user has chosen. */
    const QSignalMapper& mapper() const { return windowMapper; }

private:
    QMenu& windowMenu;
    const QMdiArea& area;
    const QList<QAction*> commands;
    QSignalMapper windowMapper;
};
