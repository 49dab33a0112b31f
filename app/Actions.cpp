#include "app/Actions.h"

#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QMainWindow>
#include <QMdiArea>

namespace {

/** Makes the actions of one window, one property after the other. */
class ActionMaker {
public:
    explicit ActionMaker(QMainWindow* owner)
        : window(owner) {}

    /** An action whose trigger calls a slot, given by its SLOT() signature. */
    QAction* make(const char* name, const char* text, const QObject* receiver,
                  const char* slot) const {
        auto* action = new QAction(translated(text), window);
        action->setObjectName(name);
        QObject::connect(action, SIGNAL(triggered()), receiver, slot);
        return action;
    }

    /** The same with a text for the status bar. */
    QAction* make(const char* name, const char* text, const char* statusTip,
                  const QObject* receiver, const char* slot) const {
        QAction* action = make(name, text, receiver, slot);
        action->setStatusTip(translated(statusTip));
        return action;
    }

    QAction* makeSeparator(const char* name) const {
        auto* action = new QAction(window);
        action->setObjectName(name);
        action->setSeparator(true);
        return action;
    }

    static QString translated(const char* text) {
        return QCoreApplication::translate("MainWindow", text);
    }

private:
    QMainWindow* window;
};

void createViewerActions(Actions& actions, const ActionMaker& maker, QMainWindow* window) {
    actions.newAct = maker.make("newAct", QT_TRANSLATE_NOOP("MainWindow", "&New"),
                                QT_TRANSLATE_NOOP("MainWindow", "Create a new viewer"), window,
                                SLOT(newViewer()));
    // There is deliberately no such picture: the action shows its text only.
    actions.newAct->setIcon(QIcon(":/images/new.png"));
    actions.newAct->setShortcuts(QKeySequence::New);

    actions.exitAct = maker.make("exitAct", QT_TRANSLATE_NOOP("MainWindow", "E&xit"),
                                 QT_TRANSLATE_NOOP("MainWindow", "Exit the application"), qApp,
                                 SLOT(closeAllWindows()));
    actions.exitAct->setShortcuts(QKeySequence::Quit);
}

void createWindowActions(Actions& actions, const ActionMaker& maker, QMainWindow* window,
                         QMdiArea* mdiArea) {
    actions.closeAct = maker.make("closeAct", QT_TRANSLATE_NOOP("MainWindow", "Cl&ose"),
                                  QT_TRANSLATE_NOOP("MainWindow", "Close the active window"),
                                  mdiArea, SLOT(closeActiveSubWindow()));
    actions.closeAllAct = maker.make("closeAllAct", QT_TRANSLATE_NOOP("MainWindow", "Close &All"),
                                     QT_TRANSLATE_NOOP("MainWindow", "Close all the windows"),
                                     window, SLOT(closeAllSubWindows()));
    actions.tileAct = maker.make("tileAct", QT_TRANSLATE_NOOP("MainWindow", "&Tile"),
                                 QT_TRANSLATE_NOOP("MainWindow", "Tile the windows"), mdiArea,
                                 SLOT(tileSubWindows()));
    actions.tileAct->setShortcut(
        ActionMaker::translated(QT_TRANSLATE_NOOP("MainWindow", "Ctrl+T")));
    actions.cascadeAct = maker.make("cascadeAct", QT_TRANSLATE_NOOP("MainWindow", "&Cascade"),
                                    QT_TRANSLATE_NOOP("MainWindow", "Cascade the windows"), mdiArea,
                                    SLOT(cascadeSubWindows()));
    actions.nextAct =
        maker.make("nextAct", QT_TRANSLATE_NOOP("MainWindow", "Ne&xt"),
                   QT_TRANSLATE_NOOP("MainWindow", "Move the focus to the next window"), mdiArea,
                   SLOT(activateNextSubWindow()));
    actions.nextAct->setShortcuts(QKeySequence::NextChild);
    actions.previousAct =
        maker.make("previousAct", QT_TRANSLATE_NOOP("MainWindow", "Pre&vious"),
                   QT_TRANSLATE_NOOP("MainWindow", "Move the focus to the previous window"),
                   mdiArea, SLOT(activatePreviousSubWindow()));
    actions.previousAct->setShortcuts(QKeySequence::PreviousChild);
    actions.separatorAct = maker.makeSeparator("separatorAct");
}

void createModelActions(Actions& actions, const ActionMaker& maker, QMainWindow* window) {
    actions.appearanceAct =
        maker.make("appearanceAct", QT_TRANSLATE_NOOP("MainWindow", "Change Appearance"), window,
                   SLOT(changeHyperboloidTransparency()));
    // The two actions of this text are told apart by their menu.
    actions.hyperboloidParamsAct =
        maker.make("hyperboloidParamsAct", QT_TRANSLATE_NOOP("MainWindow", "Change Parameters"),
                   window, SLOT(changeHyperboloidParameters()));
    actions.hyperboloidParamsAct->setShortcut(
        ActionMaker::translated(QT_TRANSLATE_NOOP("MainWindow", "Ctrl+P")));
    actions.helixParamsAct =
        maker.make("helixParamsAct", QT_TRANSLATE_NOOP("MainWindow", "Change Parameters"), window,
                   SLOT(setHelixParameters()));
}

void createSaveActions(Actions& actions, const ActionMaker& maker, QMainWindow* window) {
    actions.saveHelixAct = maker.make("saveHelixAct", QT_TRANSLATE_NOOP("MainWindow", "Helix"),
                                      window, SLOT(saveHelixData()));
    actions.saveUAct = maker.make("saveUAct", QT_TRANSLATE_NOOP("MainWindow", "U Hyperboloid"),
                                  window, SLOT(saveUHyperboloidData()));
    actions.saveXAct = maker.make("saveXAct", QT_TRANSLATE_NOOP("MainWindow", "X Hyperboloid"),
                                  window, SLOT(saveXHyperboloidData()));
    actions.saveMAct = maker.make("saveMAct", QT_TRANSLATE_NOOP("MainWindow", "M Hyperboloid"),
                                  window, SLOT(saveMHyperboloidData()));
    // On purpose in no menu and without a shortcut: it is there for code that triggers it.
    actions.saveImageAct = maker.make("saveImageAct", QT_TRANSLATE_NOOP("MainWindow", "Image"),
                                      window, SLOT(saveCurrentImage()));
}

void createHelpActions(Actions& actions, const ActionMaker& maker, QMainWindow* window) {
    actions.aboutAct = maker.make(
        "aboutAct", QT_TRANSLATE_NOOP("MainWindow", "&About"),
        QT_TRANSLATE_NOOP("MainWindow", "Show the application's About box"), window, SLOT(about()));
    actions.aboutQtAct = maker.make(
        "aboutQtAct", QT_TRANSLATE_NOOP("MainWindow", "About &Qt"),
        QT_TRANSLATE_NOOP("MainWindow", "Show the Qt library's About box"), qApp, SLOT(aboutQt()));
}

} // namespace

Actions Actions::create(QMainWindow* window, QMdiArea* mdiArea) {
    const ActionMaker maker(window);
    Actions actions;
    createViewerActions(actions, maker, window);
    createWindowActions(actions, maker, window, mdiArea);
    createModelActions(actions, maker, window);
    createSaveActions(actions, maker, window);
    createHelpActions(actions, maker, window);
    return actions;
}
