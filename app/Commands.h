#pragma once

#include "app/CommandTable.h"

#include <vector>

class QAction;
class QMainWindow;
class QMdiArea;
class QMenu;
class QMenuBar;

/** The commands of a window as actions; none before create(). The window owns the actions. */
class Commands {
public:
    /**
     * Makes an action of each row of the table, a child of the window, and connects it to its slot
     * of the window, of the document area or of the application.
     */
    static Commands create(QMainWindow* window, const QMdiArea* documentArea);

    /**
     * Fills an empty menu bar with the menus.
     *
     * @return the "&Window" menu, which is to list the documents below its commands
     */
    QMenu* addMenus(QMenuBar* bar) const;

    /**
     * Enables the commands whose condition holds and disables the others.
     *
     * @param hasActiveFrame whether one of the documents is active
     * @param frameCount     number of documents
     */
    void updateEnabled(bool hasActiveFrame, int frameCount) const;

private:
    struct Entry {
        const Command* command;
        QAction* action;
    };

    std::vector<Entry> entries;
};
