#include "app/ActiveFrames.h"

#include "tests/app/BareFrames.h"

#include <gtest/gtest.h>

namespace {

class ActiveFramesTest : public testing::Test {
protected:
    ActiveFrames active;
    std::unique_ptr<HyperboloidFrame> u = BareFrames::hyperboloid(Hyperboloid::USPACE);
    std::unique_ptr<HyperboloidFrame> x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    std::unique_ptr<HyperboloidFrame> m = BareFrames::hyperboloid(Hyperboloid::MSPACE);
    std::unique_ptr<HelixFrame> first = BareFrames::helix();
    std::unique_ptr<HelixFrame> second = BareFrames::helix();
};

} // namespace

TEST_F(ActiveFramesTest, StartWithTwoFramesThatNobodySees) {
    const int before = SoQtGeneralViewerFrame::instances;
    const ActiveFrames fresh;
    EXPECT_EQ(fresh.current()->getId(), before);
    EXPECT_EQ(fresh.previous()->getId(), before + 1);
    EXPECT_EQ(SoQtGeneralViewerFrame::instances, before + 2);
    for (const SoQtGeneralViewerFrame* frame : {fresh.current(), fresh.previous()}) {
        EXPECT_EQ(frame->GetType(), "SoQtExaminerViewerFrame");
        EXPECT_FALSE(frame->isVisible());
    }
    EXPECT_EQ(fresh.currentHelix(), nullptr);
}

TEST_F(ActiveFramesTest, RememberTheFrameBefore) {
    active.activate(first.get());
    active.activate(x.get());
    EXPECT_EQ(active.current(), x.get());
    EXPECT_EQ(active.previous(), first.get());
    EXPECT_EQ(active.currentHelix(), nullptr);
    active.activate(second.get());
    EXPECT_EQ(active.previous(), x.get());
    EXPECT_EQ(active.currentHelix(), second.get());
}

TEST_F(ActiveFramesTest, HyperboloidRightAfterAHelixAloneSteersIt) {
    active.activate(first.get());
    active.activate(second.get());
    active.activate(x.get());
    EXPECT_EQ(x->GetPreviousHelix(), second.get());
    EXPECT_EQ(u->GetPreviousHelix(), nullptr);
    EXPECT_EQ(m->GetPreviousHelix(), nullptr);
}

TEST_F(ActiveFramesTest, NoActiveFrameInBetweenKeepsTheTie) {
    active.activate(second.get());
    active.activate(nullptr);
    EXPECT_EQ(active.current(), second.get());
    active.activate(m.get());
    EXPECT_EQ(m->GetPreviousHelix(), second.get());
}

TEST_F(ActiveFramesTest, OtherPairsTieNothing) {
    active.activate(u.get());
    EXPECT_EQ(u->GetPreviousHelix(), nullptr) << "after a frame that nobody sees";
    active.activate(x.get());
    EXPECT_EQ(x->GetPreviousHelix(), nullptr) << "after a hyperboloid";
    active.activate(first.get());
    EXPECT_EQ(x->GetPreviousHelix(), nullptr) << "before a helix";
}

TEST_F(ActiveFramesTest, SecondActivationOfAHyperboloidKeepsItsHelix) {
    active.activate(first.get());
    active.activate(u.get());
    active.activate(u.get());
    EXPECT_EQ(u->GetPreviousHelix(), first.get());
    active.activate(m.get());
    EXPECT_EQ(m->GetPreviousHelix(), nullptr);
}

TEST_F(ActiveFramesTest, DeadFramesReadAsNullAndTieNothing) {
    active.activate(x.get());
    active.activate(first.get());
    first.reset();
    EXPECT_EQ(active.current(), nullptr);
    EXPECT_EQ(active.currentHelix(), nullptr);
    active.activate(m.get());
    EXPECT_EQ(active.previous(), nullptr);
    EXPECT_EQ(m->GetPreviousHelix(), nullptr);
}
