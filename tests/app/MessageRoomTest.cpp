#include "app/MessageRoom.h"

#include <QLabel>
#include <QStatusBar>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace {

/** A bar whose permanent label takes all the room that it is given. */
class MessageRoomTest : public testing::Test {
protected:
    MessageRoomTest() {
        new MessageRoom(bar);
        label = new QLabel;
        bar.addPermanentWidget(label, 1);
        resize(900);
        bar.show();
    }

    void resize(int width) {
        bar.resize(width, 30);
        bar.grab();
    }
    /** Where the message ends and the label begins. */
    int edge() {
        bar.grab();
        return label->x();
    }

    QStatusBar bar;
    QLabel* label;
};

} // namespace

TEST_F(MessageRoomTest, IsAsWideAsTheMessageUntilItGoes) {
    const int without = edge();
    const QString message = "Create a new viewer";
    bar.showMessage(message);
    EXPECT_GE(edge(), bar.fontMetrics().horizontalAdvance(message));
    EXPECT_LE(edge(), bar.fontMetrics().horizontalAdvance(message + "MMMM"));
    bar.clearMessage();
    EXPECT_EQ(edge(), without);
}

TEST_F(MessageRoomTest, IsAThirdOfTheBarAtMost) {
    bar.showMessage(QString(300, 'x'));
    EXPECT_NEAR(edge(), 300, 20);
    resize(600);
    EXPECT_EQ(bar.width(), 600) << "it can be made smaller";
    EXPECT_NEAR(edge(), 200, 20);
}

TEST_F(MessageRoomTest, WhatFindsNoRoomStandsInTheToolTipAsItIs) {
    const QString message = "Saved /tmp/<b>/" + QString(300, 'x');
    bar.showMessage(message);
    QTextDocument tip;
    tip.setHtml(bar.toolTip());
    EXPECT_EQ(tip.toPlainText(), message);
    bar.clearMessage();
    EXPECT_EQ(bar.toolTip(), "");
}

TEST_F(MessageRoomTest, IsTakenFromTheLeftAlone) {
    bar.clearMessage();
    resize(800);
    EXPECT_EQ(bar.contentsMargins(), QMargins());
    bar.showMessage("Create a new viewer");
    const QMargins margins = bar.contentsMargins();
    EXPECT_GT(margins.left(), 0);
    EXPECT_EQ(margins, QMargins(margins.left(), 0, 0, 0));
}
