#include "app/Commands.h"

#include "app/MainWindow.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QSet>
#include <QSettings>
#include <QSignalMapper>
#include <gtest/gtest.h>

namespace {

QStringList texts(const QList<QAction*>& actions) {
    QStringList found;
    for (const QAction* action : actions) {
        found << (action->isSeparator() ? "-" : action->text());
    }
    return found;
}

QMenu& menu(const QMenuBar& bar, const char* title) {
    for (const QAction* action : bar.actions()) {
        if (action->text() == title) {
            return *action->menu();
        }
    }
    throw std::runtime_error(title);
}

QStringList names(const QMenu& menu) {
    QStringList found;
    for (const QAction* action : menu.actions()) {
        found << action->objectName();
    }
    return found;
}

/** A main window without documents, and the commands a second time in a menu bar of their own. */
class CommandsTest : public testing::Test {
protected:
    /** The names of the commands of the menus that are enabled. */
    QSet<QString> enabledNames() const {
        QSet<QString> names;
        for (const QAction* title : bar.actions()) {
            const QList<QAction*> entries =
                title->isSeparator() ? QList<QAction*>() : title->menu()->actions();
            for (const QAction* entry : entries) {
                if (entry->isEnabled() && !entry->isSeparator()) {
                    names.insert(entry->objectName());
                }
            }
        }
        return names;
    }

    MainWindow window;
    QMdiArea area;
    QMenuBar bar;
    const Commands commands = Commands::create(&window, &area);
    QMenu* windowMenu = commands.addMenus(&bar);
};

const QMetaObject& metaObjectOf(CommandReceiver receiver) {
    switch (receiver) {
    case CommandReceiver::documentArea:
        return QMdiArea::staticMetaObject;
    case CommandReceiver::application:
        return QApplication::staticMetaObject;
    default:
        return MainWindow::staticMetaObject;
    }
}

} // namespace

TEST_F(CommandsTest, MenuBarHoldsTheMenusInOrder) {
    for (const QMenuBar* each : {&bar, window.menuBar()}) {
        EXPECT_EQ(texts(each->actions()), (QStringList{"&Viewer", "&Window", "Edit Hyperboloid",
                                                       "Edit Helix", "Save Data", "-", "&Help"}));
        EXPECT_EQ(texts(menu(*each, "&Viewer").actions()), (QStringList{"&New", "-", "E&xit"}));
        EXPECT_EQ(texts(menu(*each, "&Window").actions()),
                  (QStringList{"Cl&ose", "Close &All", "-", "&Tile", "&Cascade", "-", "Ne&xt",
                               "Pre&vious", "-"}));
        EXPECT_EQ(texts(menu(*each, "Edit Hyperboloid").actions()),
                  (QStringList{"Change Appearance", "Change Parameters"}));
        EXPECT_EQ(texts(menu(*each, "Edit Helix").actions()), (QStringList{"Change Parameters"}));
        // Only their menus tell apart what changes parameters.
        EXPECT_EQ(names(menu(*each, "Edit Hyperboloid")),
                  (QStringList{"appearanceAct", "hyperboloidParamsAct"}));
        EXPECT_EQ(names(menu(*each, "Edit Helix")), (QStringList{"helixParamsAct"}));
        EXPECT_EQ(texts(menu(*each, "Save Data").actions()),
                  (QStringList{"U Hyperboloid", "X Hyperboloid", "M Hyperboloid", "Helix"}));
        EXPECT_EQ(texts(menu(*each, "&Help").actions()), (QStringList{"&About", "About &Qt"}));
    }
    EXPECT_EQ(windowMenu, &menu(bar, "&Window"));
}

TEST_F(CommandsTest, ActionsHaveTheirTextsShortcutsAndStatusTips) {
    struct Expected {
        const char* name;
        const char* text;
        QList<QKeySequence> shortcuts;
        const char* tip;
    };
    const auto standard = [](QKeySequence::StandardKey key) {
        return QKeySequence::keyBindings(key);
    };
    const QList<QKeySequence> none;
    const std::vector<Expected> all{
        {"newAct", "&New", standard(QKeySequence::New), "Create a new viewer"},
        {"exitAct", "E&xit", standard(QKeySequence::Quit), "Exit the application"},
        {"closeAct", "Cl&ose", none, "Close the active window"},
        {"closeAllAct", "Close &All", none, "Close all the windows"},
        {"tileAct", "&Tile", {QKeySequence("Ctrl+T")}, "Tile the windows"},
        {"cascadeAct", "&Cascade", none, "Cascade the windows"},
        {"nextAct", "Ne&xt", standard(QKeySequence::NextChild),
         "Move the focus to the next window"},
        {"previousAct", "Pre&vious", standard(QKeySequence::PreviousChild),
         "Move the focus to the previous window"},
        {"appearanceAct", "Change Appearance", none, ""},
        {"hyperboloidParamsAct", "Change Parameters", {QKeySequence("Ctrl+P")}, ""},
        {"helixParamsAct", "Change Parameters", none, ""},
        {"saveHelixAct", "Helix", none, ""},
        {"saveUAct", "U Hyperboloid", none, ""},
        {"saveXAct", "X Hyperboloid", none, ""},
        {"saveMAct", "M Hyperboloid", none, ""},
        {"saveImageAct", "Image", none, ""},
        {"aboutAct", "&About", none, "Show the application's About box"},
        {"aboutQtAct", "About &Qt", none, "Show the Qt library's About box"}};
    for (const Expected& expected : all) {
        const auto* action = window.findChild<QAction*>(expected.name);
        ASSERT_NE(action, nullptr) << expected.name;
        EXPECT_EQ(action->text(), expected.text);
        EXPECT_EQ(action->shortcuts(), expected.shortcuts) << expected.name;
        EXPECT_EQ(action->statusTip(), expected.tip);
        EXPECT_EQ(action->parent(), &window);
    }
    EXPECT_TRUE(window.findChild<QAction*>("separatorAct")->isSeparator());
}

TEST_F(CommandsTest, NewActionHasNoPicture) {
    EXPECT_TRUE(window.findChild<QAction*>("newAct")->icon().pixmap(16).isNull());
}

TEST_F(CommandsTest, ImageActionIsInNoMenu) {
    for (const QAction* action : window.findChildren<QAction*>("saveImageAct")) {
        EXPECT_TRUE(action->associatedWidgets().isEmpty());
    }
}

TEST_F(CommandsTest, EachHasANameOfItsOwnAndASlotThatExists) {
    QSet<QString> names;
    for (const Command& command : CommandTable::commands()) {
        if (command.isSeparator()) {
            continue;
        }
        EXPECT_FALSE(names.contains(command.name)) << command.name;
        names.insert(command.name);
        // A slot's text begins with a digit that tells what it is.
        const QByteArray signature = QMetaObject::normalizedSignature(command.slot + 1);
        EXPECT_GE(metaObjectOf(command.receiver).indexOfSlot(signature), 0) << command.name;
    }
    EXPECT_EQ(names.size(), 18);
}

TEST_F(CommandsTest, OnlyWhatNeedsDocumentsIsEverDisabled) {
    const QSet<QString> always{
        "newAct",         "exitAct",  "appearanceAct", "hyperboloidParamsAct",
        "helixParamsAct", "saveUAct", "saveXAct",      "saveMAct",
        "saveHelixAct",   "aboutAct", "aboutQtAct"};
    const QSet<QString> withActiveFrame{"closeAct", "closeAllAct", "tileAct", "cascadeAct"};
    const QSet<QString> withSeveral{"nextAct", "previousAct"};
    commands.updateEnabled(false, 0);
    EXPECT_EQ(enabledNames(), always);
    commands.updateEnabled(true, 1);
    EXPECT_EQ(enabledNames(), always + withActiveFrame);
    commands.updateEnabled(false, 2);
    EXPECT_EQ(enabledNames(), always + withSeveral);
    commands.updateEnabled(true, 5);
    EXPECT_EQ(enabledNames(), always + withActiveFrame + withSeveral);
    commands.updateEnabled(false, 1);
    EXPECT_EQ(enabledNames(), always);
}

TEST_F(CommandsTest, EverythingButNewAndExitIsDisabledWithoutDocuments) {
    const MainWindow empty;
    for (const char* name :
         {"closeAct", "closeAllAct", "tileAct", "cascadeAct", "nextAct", "previousAct"}) {
        EXPECT_FALSE(empty.findChild<QAction*>(name)->isEnabled()) << name;
    }
}

TEST_F(CommandsTest, ExitClosesEveryWindowAndStaysOpenWithTheOneThatRefuses) {
    class Refusing : public QWidget {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    } refusing;
    window.show();
    refusing.show();
    window.findChild<QAction*>("exitAct")->trigger();
    EXPECT_TRUE(refusing.isVisible());
    refusing.hide();
    QSettings("Trolltech", "MDI Viewer").clear();
    window.show();
    window.resize(593, 417);
    window.findChild<QAction*>("exitAct")->trigger();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(QSettings("Trolltech", "MDI Viewer").value("size").toSize(), QSize(593, 417));
    QSettings("Trolltech", "MDI Viewer").clear();
}

TEST(MainWindowSlots, SlotsStandInTheirOrder) {
    const QMetaObject& meta = MainWindow::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        EXPECT_EQ(meta.method(i).methodType(), QMetaMethod::Slot);
        EXPECT_EQ(meta.method(i).access(), QMetaMethod::Private);
        signatures << meta.method(i).methodSignature();
    }
    EXPECT_EQ(signatures, (QStringList{"newViewer()",
                                       "about()",
                                       "updateMenus()",
                                       "updateWindowMenu()",
                                       "createHelix(bool)",
                                       "createHelix()",
                                       "createHyperboloid(int,const char*)",
                                       "setActiveSubWindow(QWidget*)",
                                       "closeAllSubWindows()",
                                       "changeHyperboloidColor()",
                                       "changeHyperboloidTransparency()",
                                       "changeHyperboloidParameters()",
                                       "refreshHyperboloidTransp(int)",
                                       "refreshHyperboloidLight(int)",
                                       "refreshHyperboloidSat(int)",
                                       "setHelixParameters()",
                                       "helix_change_radius(int)",
                                       "helix_change_range(int)",
                                       "helix_change_nturns(int)",
                                       "helix_change_precision_line(int)",
                                       "helix_change_precision_tube(int)",
                                       "saveHelixData()",
                                       "saveUHyperboloidData()",
                                       "saveXHyperboloidData()",
                                       "saveMHyperboloidData()",
                                       "saveCurrentImage()",
                                       "saveObjData(SoQtGeneralViewerFrame*,bool)"}));
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST(MainWindowSlots, MapperOfTheWindowMenuIsAChildOfTheWindow) {
    const MainWindow window;
    EXPECT_EQ(window.findChildren<QSignalMapper*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
}

TEST(MainWindowSlots, FramesAddNothingToTheirMetaObjects) {
    for (const QMetaObject* meta :
         {&SoQtGeneralViewerFrame::staticMetaObject, &HelixFrame::staticMetaObject,
          &HyperboloidFrame::staticMetaObject}) {
        EXPECT_EQ(meta->methodCount(), meta->methodOffset());
        EXPECT_EQ(meta->propertyCount(), meta->propertyOffset());
    }
}
