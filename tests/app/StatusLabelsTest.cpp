#include "app/StatusLabels.h"

#include "tests/app/BareFrames.h"

#include <QLabel>
#include <QStatusBar>
#include <QTextDocument>
#include <gtest/gtest.h>
#include <memory>

namespace {

class StatusLabelsTest : public testing::Test {
protected:
    QLabel& label(const char* name) const { return *bar.findChild<QLabel*>(name); }
    QString text(const char* name) const { return label(name).text(); }

    /** Expects the labels that tell of the active view to be seen, or not to be. */
    void expectViewIsTold(bool isTold) const {
        for (const char* name : {"steeredHelixLabel", "helixPointLabel", "viewerTitleLabel"}) {
            EXPECT_EQ(label(name).isVisible(), isTold) << name;
        }
    }

    /** Shows surfaces in the bar on a width, and lets it arrange its labels. */
    void showSurfacesIn(int width, const std::vector<HyperboloidFrame*>& surfaces) {
        labels.showSurfaces(surfaces);
        bar.resize(width, 30);
        bar.show();
        bar.grab();
    }

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
    EXPECT_EQ(text("steeredHelixLabel"), helix->windowTitle() + ": U = (0.71; 0.53; -0.31)");
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

TEST_F(StatusLabelsTest, TellAHelixsPointAsLongAsItsTitleSaysSomethingElse) {
    const auto helix = BareFrames::helix();
    labels.show(helix.get());
    EXPECT_EQ(text("helixPointLabel"), "U = (0.71; 0.53; -0.31)");
    const auto x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    labels.show(x.get());
    EXPECT_EQ(text("helixPointLabel"), "") << "a hyperboloid has none";
    labels.show(nullptr);
    EXPECT_EQ(text("helixPointLabel"), "");
}

TEST_F(StatusLabelsTest, TellForEachSurfaceWhichHelixItSteers) {
    const auto u = BareFrames::hyperboloid(Hyperboloid::USPACE);
    const auto x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    const auto m = BareFrames::hyperboloid(Hyperboloid::MSPACE);
    const auto first = BareFrames::helix();
    const auto second = BareFrames::helix();
    u->SetPreviousHelix(second.get());
    m->SetPreviousHelix(first.get());
    labels.showSurfaces({u.get(), x.get(), m.get()});
    EXPECT_EQ(text("steeringLabel"),
              x->windowTitle() + " (X) steers no helix: activate a helix, then this view · " +
                  u->windowTitle() + " (U) steers " + second->windowTitle() + " · " +
                  m->windowTitle() + " (M) steers " + first->windowTitle());
}

TEST_F(StatusLabelsTest, TellFirstWhatSteersNothingAndTheOthersInTheirOrder) {
    const auto u = BareFrames::hyperboloid(Hyperboloid::USPACE);
    const auto x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    const auto m = BareFrames::hyperboloid(Hyperboloid::MSPACE);
    const auto first = BareFrames::helix();
    const auto second = BareFrames::helix();
    u->SetPreviousHelix(second.get());
    x->SetPreviousHelix(first.get());
    labels.showSurfaces({u.get(), x.get(), m.get()});
    const QStringList sentences = text("steeringLabel").split(" · ");
    ASSERT_EQ(sentences.size(), 3);
    EXPECT_TRUE(sentences[0].startsWith(m->windowTitle() + " (M) steers no helix"));
    EXPECT_TRUE(sentences[1].startsWith(u->windowTitle() + " (U) steers"));
    EXPECT_TRUE(sentences[2].startsWith(x->windowTitle() + " (X) steers"));
    QTextDocument tip;
    tip.setHtml(label("steeringLabel").toolTip());
    EXPECT_EQ(tip.toPlainText(), sentences.join('\n')) << "each on a line of its own";
}

TEST_F(StatusLabelsTest, TellTogetherWhichSurfacesSteerTheSameHelix) {
    const auto u = BareFrames::hyperboloid(Hyperboloid::USPACE);
    const auto x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    const auto m = BareFrames::hyperboloid(Hyperboloid::MSPACE);
    const auto helix = BareFrames::helix();
    u->SetPreviousHelix(helix.get());
    m->SetPreviousHelix(helix.get());
    labels.showSurfaces({u.get(), x.get(), m.get()});
    EXPECT_TRUE(text("steeringLabel")
                    .endsWith(" · " + u->windowTitle() + " (U), " + m->windowTitle() +
                              " (M) steer " + helix->windowTitle()));
    u->PrevHelixDead();
    labels.showSurfaces({u.get(), x.get()});
    EXPECT_EQ(text("steeringLabel"),
              u->windowTitle() + " (U), " + x->windowTitle() +
                  " (X) steer no helix: activate a helix, then one of these views");
}

TEST_F(StatusLabelsTest, TellWhatIsDrawnOnlyAsLongAsItIsNotTheQuadric) {
    const auto u = BareFrames::hyperboloid(Hyperboloid::USPACE);
    showSurfacesIn(900, {u.get()});
    EXPECT_FALSE(label("surfaceConditionLabel").isVisible());
    u->set_parameters(1.37, 1.91, 2.23, 0.0, 0.0, 0.83, -0.29, 0.17, 64, 64, 0.3, 7, 7, 0.02, 0.03);
    labels.showSurfaces({u.get()});
    EXPECT_EQ(text("surfaceConditionLabel"),
              "Unit hyperboloid, not the quadric: K13 = 0 and K23 = 0");
    EXPECT_TRUE(label("surfaceConditionLabel").isVisible());
    bar.showMessage("Create a new viewer");
    EXPECT_TRUE(label("surfaceConditionLabel").isVisible()) << "beside a message";
    u->set_parameters(1.37, 1.91, 2.23, 0.61, 0.4, 0.83, -0.29, 0.17, 64, 64, 0.3, 7, 7, 0.02,
                      0.03);
    labels.showSurfaces({u.get()});
    EXPECT_FALSE(label("surfaceConditionLabel").isVisible());
}

TEST_F(StatusLabelsTest, LeaveOutTheEndsOfLongTextsWhereThereIsLittleRoom) {
    const auto u = BareFrames::hyperboloid(Hyperboloid::USPACE);
    const auto helix = BareFrames::helix();
    u->SetPreviousHelix(helix.get());
    u->set_parameters(1.37, 1.91, 2.23, 0.0, 0.0, 0.83, -0.29, 0.17, 64, 64, 0.3, 7, 7, 0.02, 0.03);
    labels.show(u.get());
    bar.showMessage("Ready");
    const int little = 90 * bar.fontMetrics().averageCharWidth();
    showSurfacesIn(little, {u.get()});
    EXPECT_EQ(bar.width(), little) << "less is not needed";
    for (const char* whole : {"steeredHelixLabel", "viewerTitleLabel"}) {
        EXPECT_GE(label(whole).width(), label(whole).sizeHint().width()) << whole;
    }
    for (const char* cut : {"surfaceConditionLabel", "steeringLabel"}) {
        EXPECT_LT(label(cut).width(), label(cut).sizeHint().width()) << cut;
        EXPECT_GE(label(cut).width(), label(cut).minimumSizeHint().width()) << cut;
        EXPECT_TRUE(label(cut).toolTip().contains(text(cut).left(20))) << cut;
    }
    EXPECT_GT(label("surfaceConditionLabel").x(), bar.fontMetrics().horizontalAdvance("Ready"))
        << "the message can be read";
}

TEST_F(StatusLabelsTest, GiveTheSurfaceItsRoomBeforeTheSteering) {
    const auto u = BareFrames::hyperboloid(Hyperboloid::USPACE);
    u->set_parameters(1.37, 1.91, 2.23, 0.0, 0.4, 0.83, -0.29, 0.17, 64, 64, 0.3, 7, 7, 0.02, 0.03);
    labels.showSurfaces({u.get()});
    QLabel& condition = label("surfaceConditionLabel");
    showSurfacesIn(condition.sizeHint().width() + label("steeringLabel").sizeHint().width() / 2,
                   {u.get()});
    EXPECT_EQ(condition.width(), condition.sizeHint().width());
    EXPECT_LT(label("steeringLabel").width(), label("steeringLabel").sizeHint().width());
}

TEST_F(StatusLabelsTest, ShowARefusalInTheRoomOfTheSteeringUntilItIsTakenBack) {
    const auto u = BareFrames::hyperboloid(Hyperboloid::USPACE);
    showSurfacesIn(900, {u.get()});
    EXPECT_FALSE(label("refusedParametersLabel").isVisible());
    HyperboloidParameters refused;
    refused.K1 = 2.71;
    labels.showRefused(refused, HyperboloidParameters());
    EXPECT_EQ(text("refusedParametersLabel"),
              "Refused: K1 = 2.71, K2 = 1.50, K3 = 1.00, K13 = 0.50, K23 = 0.50: K1 ≤ K2 does not "
              "hold");
    EXPECT_TRUE(label("refusedParametersLabel").isVisible());
    EXPECT_FALSE(label("steeringLabel").isVisible());
    expectViewIsTold(false);
    labels.showSurfaces({u.get()});
    EXPECT_FALSE(label("steeringLabel").isVisible());
    labels.clearRefused();
    EXPECT_FALSE(label("refusedParametersLabel").isVisible());
    EXPECT_TRUE(label("steeringLabel").isVisible());
    expectViewIsTold(true);
}
