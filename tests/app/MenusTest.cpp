#include "tests/support/DialogDriver.h"
#include "tests/support/OpenedWindow.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
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

/** Strikes keys of the keyboard, which go to the window that has the focus. */
void strike(const QStringList& keys) {
    QProcess::execute("xdotool", keys);
}

} // namespace

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

TEST(MenusTest, CascadeShowsEveryTitleBar) {
    const OpenedWindow opened;
    for (const int activated : {3, 1, 0}) {
        QMdiSubWindow* active = opened.area().subWindowList()[activated];
        opened.area().setActiveSubWindow(active);
        opened.action("cascadeAct").trigger();
        for (const QMdiSubWindow* subWindow : opened.area().subWindowList()) {
            constexpr int belowTheEdge = 8;
            for (int x = 1; x < subWindow->width(); x += subWindow->width() / 4) {
                const QPoint inTitleBar = subWindow->geometry().topLeft() + QPoint(x, belowTheEdge);
                EXPECT_EQ(opened.area().viewport()->childAt(inTitleBar), subWindow)
                    << qPrintable(subWindow->windowTitle()) << " at " << x;
            }
        }
        EXPECT_EQ(opened.area().activeSubWindow(), active);
    }
}

TEST(MenusTest, KeysOfTheKeyboardWalkThroughTheFramesBothWays) {
    const OpenedWindow opened;
    const QList<QMdiSubWindow*> all = opened.area().subWindowList();
    const auto expectActive = [&](int position) {
        EXPECT_TRUE(waitUntil([&] { return opened.area().activeSubWindow() == all[position]; }))
            << position;
    };
    opened.area().setActiveSubWindow(all[3]);
    for (const int position : {2, 1, 0, 3}) {
        strike({"key", "ctrl+shift+Tab"});
        expectActive(position);
    }
    for (const int position : {0, 1, 2, 3}) {
        strike({"key", "ctrl+Tab"});
        expectActive(position);
    }
    // Quickly, without a release of the other keys.
    strike({"keydown", "ctrl", "keydown", "shift", "key", "Tab", "key", "Tab", "key", "Tab",
            "keyup", "shift", "keyup", "ctrl"});
    expectActive(0);
}

TEST(MenusTest, AboutBoxHasItsTitleAndText) {
    const OpenedWindow opened;
    DialogDriver()
        .then<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.parent(), &opened.window());
            EXPECT_EQ(box.icon(), QMessageBox::NoIcon) << "it shows the program's, or nothing";
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
