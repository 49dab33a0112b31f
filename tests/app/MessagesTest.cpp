#include "app/Messages.h"
#include "tests/support/DialogDriver.h"

#include <QMessageBox>
#include <gtest/gtest.h>

TEST(MessagesTest, WhatHindersTheStartCanBeCopiedFromItsBox) {
    testing::internal::CaptureStderr();
    DialogDriver()
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "Torvane");
            EXPECT_EQ(box.text(), "No such thing: install it");
            EXPECT_EQ(box.icon(), QMessageBox::Critical);
            EXPECT_TRUE(box.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
            box.accept();
        })
        .during([] { Messages::cannotStart("No such thing: install it"); });
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("No such thing: install it\n"), std::string::npos) << said;
}
