#include "app/WindowMenu.h"

#include "tests/support/Waiting.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <gtest/gtest.h>

namespace {

class WindowMenuTest : public testing::Test {
protected:
    WindowMenuTest() {
        auto* separator = new QAction(&owner);
        separator->setSeparator(true);
        menu.addActions({new QAction("Cl&ose", &owner), separator});
        for (const char* title : {"Viewer 17", "Viewer 5", "Viewer 23"}) {
            open(title);
        }
        area.resize(700, 500);
        area.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&area, patience));
    }

    void open(const QString& title) {
        auto* document = new QWidget;
        document->setWindowTitle(title);
        area.addSubWindow(document)->show();
    }

    QStringList texts() const {
        QStringList found;
        for (const QAction* entry : menu.actions()) {
            found << (entry->isSeparator() ? "-" : entry->text());
        }
        return found;
    }

    QMdiArea area;
    /** Owns the commands, as the main window does. */
    QObject owner;
    QMenu menu;
};

} // namespace

TEST_F(WindowMenuTest, ListsTheDocumentsBelowItsCommandsAndChecksTheActiveOne) {
    WindowMenu windowMenu(menu, area, &owner);
    area.setActiveSubWindow(area.subWindowList()[1]);
    windowMenu.update();
    EXPECT_EQ(texts(), (QStringList{"Cl&ose", "-", "&1 Viewer 17", "&2 Viewer 5", "&3 Viewer 23"}));
    for (int i = 2; i < 5; ++i) {
        EXPECT_TRUE(menu.actions()[i]->isCheckable());
        EXPECT_EQ(menu.actions()[i]->isChecked(), i == 3) << i;
    }
}

TEST_F(WindowMenuTest, FollowsWhatIsOpenAndKeepsItsCommands) {
    WindowMenu windowMenu(menu, area, &owner);
    const QList<QAction*> commands = menu.actions();
    windowMenu.update();
    delete area.subWindowList()[0];
    open("Viewer 29");
    windowMenu.update();
    EXPECT_EQ(texts(), (QStringList{"Cl&ose", "-", "&1 Viewer 5", "&2 Viewer 23", "&3 Viewer 29"}));
    EXPECT_EQ(menu.actions().mid(0, 2), commands);
}

TEST_F(WindowMenuTest, TenthEntryHasItsMnemonicToo) {
    for (int i = 0; i < 7; ++i) {
        open("more");
    }
    WindowMenu windowMenu(menu, area, &owner);
    windowMenu.update();
    EXPECT_EQ(texts().last(), "&10 more");
}

TEST_F(WindowMenuTest, ChecksNothingWhenNoDocumentIsActive) {
    WindowMenu windowMenu(menu, area, &owner);
    area.setActiveSubWindow(nullptr);
    windowMenu.update();
    for (const QAction* entry : menu.actions()) {
        EXPECT_FALSE(entry->isChecked());
    }
}

TEST_F(WindowMenuTest, TellsTheChosenDocument) {
    WindowMenu windowMenu(menu, area, &owner);
    windowMenu.update();
    std::vector<const QWidget*> chosen;
    QObject::connect(&windowMenu.mapper(), &QSignalMapper::mappedWidget,
                     [&](QWidget* widget) { chosen.push_back(widget); });
    menu.actions()[4]->trigger();
    menu.actions()[2]->trigger();
    EXPECT_EQ(chosen,
              (std::vector<const QWidget*>{area.subWindowList()[2], area.subWindowList()[0]}));
}
