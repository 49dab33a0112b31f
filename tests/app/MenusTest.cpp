#include "tests/support/DialogDriver.h"
#include "tests/support/OpenedWindow.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaMethod>
#include <gtest/gtest.h>

namespace {

QStringList texts(const QList<QAction*>& actions) {
    QStringList found;
    for (const QAction* action : actions) {
        found << (action->isSeparator() ? "-" : action->text());
    }
    return found;
}

QMenu& menu(const OpenedWindow& opened, const char* title) {
    for (const QAction* action : opened.window().menuBar()->actions()) {
        if (action->text() == title) {
            return *action->menu();
        }
    }
    throw std::runtime_error(title);
}

/** The "&Window" menu as it is filled when the user opens it. */
QList<QAction*> windowEntries(const OpenedWindow& opened) {
    QMenu& windowMenu = menu(opened, "&Window");
    emit windowMenu.aboutToShow();
    return windowMenu.actions();
}

} // namespace

TEST(MenusTest, MenuBarHoldsTheMenusInOrder) {
    const OpenedWindow opened;
    EXPECT_EQ(texts(opened.window().menuBar()->actions()),
              (QStringList{"&Viewer", "&Window", "Edit Hyperboloid", "Edit Helix", "Save Data", "-",
                           "&Help"}));
    EXPECT_EQ(texts(menu(opened, "&Viewer").actions()), (QStringList{"&New", "-", "E&xit"}));
    EXPECT_EQ(texts(menu(opened, "Edit Hyperboloid").actions()),
              (QStringList{"Change Appearance", "Change Parameters"}));
    EXPECT_EQ(texts(menu(opened, "Edit Helix").actions()), (QStringList{"Change Parameters"}));
    EXPECT_EQ(texts(menu(opened, "Save Data").actions()),
              (QStringList{"U Hyperboloid", "X Hyperboloid", "M Hyperboloid", "Helix"}));
    EXPECT_EQ(texts(menu(opened, "&Help").actions()), (QStringList{"&About", "About &Qt"}));
}

TEST(MenusTest, ActionsHaveTheirTextsShortcutsAndStatusTips) {
    struct Expected {
        const char* name;
        const char* text;
        QList<QKeySequence> shortcuts;
        const char* tip;
    };
    const OpenedWindow opened;
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
        const QAction& action = opened.action(expected.name);
        EXPECT_EQ(action.text(), expected.text);
        EXPECT_EQ(action.shortcuts(), expected.shortcuts) << expected.name;
        EXPECT_EQ(action.statusTip(), expected.tip);
        EXPECT_EQ(action.parent(), &opened.window());
    }
    EXPECT_TRUE(opened.action("separatorAct").isSeparator());
}

TEST(MenusTest, NewActionHasNoPicture) {
    const OpenedWindow opened;
    EXPECT_TRUE(opened.action("newAct").icon().pixmap(16).isNull());
}

TEST(MenusTest, ImageActionIsInNoMenu) {
    const OpenedWindow opened;
    EXPECT_TRUE(opened.action("saveImageAct").associatedWidgets().isEmpty());
}

TEST(MenusTest, WindowMenuListsTheFramesInOrderAndChecksTheActiveOne) {
    const OpenedWindow opened;
    opened.activate(opened.hyperboloid(Hyperboloid::XSPACE));
    const QList<QAction*> entries = windowEntries(opened);
    QStringList expected{"Cl&ose", "Close &All", "-",         "&Tile", "&Cascade",
                         "-",      "Ne&xt",      "Pre&vious", "-"};
    int position = 0;
    for (const SoQtGeneralViewerFrame* frame : opened.frames()) {
        expected << QString("&%1 %2").arg(++position).arg(frame->windowTitle());
    }
    EXPECT_EQ(texts(entries), expected);
    EXPECT_TRUE(opened.action("separatorAct").isVisible());
    for (int i = 9; i < entries.size(); ++i) {
        EXPECT_TRUE(entries[i]->isCheckable());
        EXPECT_EQ(entries[i]->isChecked(), i == 10);
    }
}

TEST(MenusTest, TenthEntryHasItsMnemonicToo) {
    const OpenedWindow opened;
    for (int i = 0; i < 6; ++i) {
        opened.action("newAct").trigger();
    }
    const QList<QAction*> entries = windowEntries(opened);
    EXPECT_EQ(entries.last()->text(), "&10 " + opened.frames().back()->windowTitle());
}

TEST(MenusTest, WindowEntryActivatesItsFrame) {
    const OpenedWindow opened;
    windowEntries(opened)[9]->trigger();
    EXPECT_EQ(opened.area().activeSubWindow()->widget(), &opened.hyperboloid(0));
}

TEST(MenusTest, ActivatingNoWindowDoesNothing) {
    const OpenedWindow opened;
    const QMdiSubWindow* active = opened.area().activeSubWindow();
    opened.call("setActiveSubWindow", Q_ARG(QWidget*, nullptr));
    EXPECT_EQ(opened.area().activeSubWindow(), active);
    opened.call("setActiveSubWindow", Q_ARG(QWidget*, &opened.window()));
    EXPECT_EQ(opened.area().activeSubWindow(), nullptr);
}

TEST(MenusTest, WindowCommandsNeedAnActiveFrame) {
    const OpenedWindow opened;
    const auto expectEnabled = [&](bool enabled) {
        for (const char* name : {"closeAct", "closeAllAct", "tileAct", "cascadeAct"}) {
            EXPECT_EQ(opened.action(name).isEnabled(), enabled) << name;
        }
    };
    expectEnabled(true);
    opened.area().setActiveSubWindow(nullptr);
    expectEnabled(false);
    for (const QAction* entry : windowEntries(opened).mid(9)) {
        EXPECT_FALSE(entry->isChecked());
    }
    EXPECT_TRUE(opened.action("nextAct").isEnabled());
    EXPECT_TRUE(opened.action("previousAct").isEnabled());
    opened.activate(opened.firstHelix());
    expectEnabled(true);
}

TEST(MenusTest, EverythingButNewAndExitIsDisabledWithoutDocuments) {
    const MainWindow window;
    for (const char* name :
         {"closeAct", "closeAllAct", "tileAct", "cascadeAct", "nextAct", "previousAct"}) {
        EXPECT_FALSE(window.findChild<QAction*>(name)->isEnabled()) << name;
    }
}

TEST(MenusTest, NextAndPreviousNeedASecondFrame) {
    MainWindow window;
    const auto expectEnabled = [&](bool enabled) {
        for (const char* name : {"nextAct", "previousAct"}) {
            EXPECT_EQ(window.findChild<QAction*>(name)->isEnabled(), enabled) << name;
        }
    };
    const auto addFrame = [&](int space) {
        EXPECT_TRUE(QMetaObject::invokeMethod(&window, "createHyperboloid", Q_ARG(int, space),
                                              Q_ARG(const char*, "lone")));
        QMdiArea& area = *window.findChild<QMdiArea*>();
        QMdiSubWindow* added = area.subWindowList().constLast();
        added->show();
        EXPECT_TRUE(waitUntil([&] { return area.activeSubWindow() == added; }));
    };
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window, patience));
    addFrame(Hyperboloid::USPACE);
    EXPECT_TRUE(waitUntil([&] { return window.findChild<QAction*>("closeAct")->isEnabled(); }));
    expectEnabled(false);
    addFrame(Hyperboloid::XSPACE);
    expectEnabled(true);
}

TEST(MenusTest, NextAndPreviousWalkThroughTheFrames) {
    const OpenedWindow opened;
    opened.activate(opened.hyperboloid(0));
    opened.action("nextAct").trigger();
    EXPECT_EQ(opened.area().activeSubWindow()->widget(), &opened.hyperboloid(1));
    opened.action("previousAct").trigger();
    opened.action("previousAct").trigger();
    EXPECT_EQ(opened.area().activeSubWindow()->widget(), &opened.firstHelix());
}

TEST(MenusTest, CascadeOverlapsTheFramesAndTheShortcutTilesThemAgain) {
    const OpenedWindow opened;
    const auto overlap = [&] {
        const QList<QMdiSubWindow*> all = opened.area().subWindowList();
        return all[0]->geometry().intersects(all[1]->geometry());
    };
    EXPECT_FALSE(overlap());
    opened.action("cascadeAct").trigger();
    EXPECT_TRUE(overlap());
    QTest::keyClick(&opened.window(), Qt::Key_T, Qt::ControlModifier);
    EXPECT_FALSE(overlap());
}

TEST(MenusTest, AboutBoxHasItsTitleAndText) {
    const OpenedWindow opened;
    DialogDriver()
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "About MDI");
            EXPECT_EQ(box.text(), "The <b>Lumarin</b> example shows how to use multiple Coin3D "
                                  "viewers with SoQt.");
            box.accept();
        })
        .during([&] { opened.action("aboutAct").trigger(); });
}

TEST(MenusTest, AboutQtBoxOpens) {
    const OpenedWindow opened;
    DialogDriver()
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "About Qt");
            box.accept();
        })
        .during([&] { opened.action("aboutQtAct").trigger(); });
}

TEST(MenusTest, SlotsStandInTheirOrder) {
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

TEST(MenusTest, FramesAddNothingToTheirMetaObjects) {
    for (const QMetaObject* meta :
         {&SoQtGeneralViewerFrame::staticMetaObject, &HelixFrame::staticMetaObject,
          &HyperboloidFrame::staticMetaObject}) {
        EXPECT_EQ(meta->methodCount(), meta->methodOffset());
        EXPECT_EQ(meta->propertyCount(), meta->propertyOffset());
    }
}
