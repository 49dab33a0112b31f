#pragma once

#include <QList>
#include <QSignalMapper>

class QAction;
class QMdiArea;
class QMenu;

/** The menu that lists the open documents below its commands and lets the user jump to one. */
class WindowMenu {
public:
    /** The list goes below what the menu holds, which stays. */
    WindowMenu(QMenu& menu, const QMdiArea& documentArea);

    /**
     * Lists the documents anew, in the order of their creation: "&1 " and the frame's title, the
     * active one checked.
     */
    void update();

    QMenu& menu() const { return windowMenu; }

    /** Emits mapped(QWidget*) with the sub-window of an entry that the user has chosen. */
    const QSignalMapper& mapper() const { return windowMapper; }

private:
    QMenu& windowMenu;
    const QMdiArea& area;
    QList<QAction*> entries;
    QSignalMapper windowMapper;
};
