#include "app/StatusLabels.h"

#include "tests/app/BareFrames.h"

#include <QLabel>
#include <QStatusBar>
#include <gtest/gtest.h>

namespace {

class StatusLabelsTest : public testing::Test {
protected:
    QString text(const char* name) const { return bar.findChild<QLabel*>(name)->text(); }

    QStatusBar bar;
    StatusLabels labels{bar};
};

} // namespace

TEST_F(StatusLabelsTest, AreEmptyWithoutAFrame) {
    EXPECT_EQ(text("steeredHelixLabel"), "");
    EXPECT_EQ(text("viewerTitleLabel"), "");
}

TEST_F(StatusLabelsTest, NameTheHelixThatAHyperboloidSteersAndForgetItAgain) {
    const auto x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    const auto helix = BareFrames::helix();
    x->SetPreviousHelix(helix.get());
    labels.show(x.get());
    EXPECT_EQ(text("steeredHelixLabel"), helix->windowTitle() + ": ");
    labels.show(helix.get());
    EXPECT_EQ(text("steeredHelixLabel"), "") << "a helix steers nothing";
    labels.show(x.get());
    labels.show(nullptr);
    EXPECT_EQ(text("steeredHelixLabel"), "");
}

TEST_F(StatusLabelsTest, StandInTheBarTheHelixAtTheLeft) {
    bar.resize(500, 30);
    bar.show();
    const auto x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    const auto helix = BareFrames::helix();
    x->SetPreviousHelix(helix.get());
    labels.show(x.get());
    bar.grab();
    EXPECT_LT(bar.findChild<QLabel*>("steeredHelixLabel")->x(),
              bar.findChild<QLabel*>("viewerTitleLabel")->x());
}
