#include "app/StatusMessage.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

/** A window with a menu of two commands, one of which has a tip. */
class StatusMessageTest : public testing::Test {
protected:
    StatusMessageTest()
        : menu(window.menuBar()->addMenu("Numbers"))
        , explained(menu->addAction("Explained"))
        , plain(menu->addAction("Plain"))
        , message(window) {
        explained->setStatusTip("What it does");
        window.show();
    }

    void openMenu() {
        const QRect place = window.menuBar()->actionGeometry(menu->menuAction());
        QTest::mouseClick(window.menuBar(), Qt::LeftButton, Qt::NoModifier, place.center());
    }
    void step(Qt::Key key) { QTest::keyClick(menu, key); }
    QString shown() { return window.statusBar()->currentMessage(); }
    /** The toolkit keeps a timer below the status bar for a message that is to vanish. */
    bool willVanish() const { return !window.statusBar()->findChildren<QTimer*>().isEmpty(); }

    QMainWindow window;
    QMenu* menu;
    QAction* explained;
    QAction* plain;
    StatusMessage message;
};

} // namespace

TEST_F(StatusMessageTest, StandsUntilTheNextOne) {
    window.statusBar()->showMessage("soon gone", 60000);
    EXPECT_TRUE(willVanish());
    message.say("first");
    EXPECT_EQ(shown(), "first");
    EXPECT_FALSE(willVanish());
    message.say(std::nullopt);
    EXPECT_EQ(shown(), "first");
    message.say("second");
    EXPECT_EQ(shown(), "second");
    message.say("");
    EXPECT_EQ(shown(), "");
}

TEST_F(StatusMessageTest, GivesWayToTipsAndComesBack) {
    message.say("said before");
    openMenu();
    step(Qt::Key_Down);
    EXPECT_EQ(shown(), "What it does");
    step(Qt::Key_Down);
    EXPECT_EQ(shown(), "said before");
    EXPECT_FALSE(willVanish());
    step(Qt::Key_Up);
    EXPECT_EQ(shown(), "What it does");
    step(Qt::Key_Escape);
    EXPECT_EQ(shown(), "said before");
}

TEST_F(StatusMessageTest, ComesBackEmptyWhereNothingWasSaidLast) {
    message.say("old");
    message.say("");
    openMenu();
    step(Qt::Key_Down);
    EXPECT_EQ(shown(), "What it does");
    step(Qt::Key_Escape);
    EXPECT_EQ(shown(), "");
}
