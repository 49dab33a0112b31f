#include "tests/app/ParameterDialogs.h"
#include "tests/support/OpenedWindow.h"

#include <QLabel>
#include <QRegularExpression>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTextDocument>
#include <gtest/gtest.h>

using namespace ParameterDialogs;

namespace {

bool isShown(const OpenedWindow& opened, const char* name) {
    return opened.window().findChild<QLabel*>(name)->isVisible();
}

void answerParameters(const OpenedWindow& opened, const std::vector<DialogDriver::Step>& steps) {
    DialogDriver(steps).during([&] { opened.action("hyperboloidParamsAct").trigger(); });
}

/** What the status bar says a surface steers. */
QString steeredBy(const OpenedWindow& opened, int space) {
    const QString name =
        opened.hyperboloid(space).windowTitle() + " (" + QString("UXM").at(space) + ")";
    for (const QString& sentence : opened.label("steeringLabel").split(" · ")) {
        const QStringList parts = sentence.split(QRegularExpression(" steers? "));
        if (parts.at(0).split(", ").contains(name)) {
            return parts.at(1).section(": ", 0, 0);
        }
    }
    return "no sentence";
}

/** The helix that a surface really steers, in the words of the status bar. */
QString helixOf(const OpenedWindow& opened, int space) {
    const HelixFrame* helix = opened.hyperboloid(space).GetPreviousHelix();
    return helix == nullptr ? "no helix" : helix->windowTitle();
}

void expectRightSteering(const OpenedWindow& opened, const char* when) {
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(steeredBy(opened, space), helixOf(opened, space)) << when << ", " << space;
    }
}

} // namespace

TEST(SurfaceStatusTest, SaysFromAcceptToAcceptThatTheSurfaceIsNotTheQuadric) {
    const OpenedWindow opened;
    EXPECT_FALSE(isShown(opened, "surfaceConditionLabel"));
    answerParameters(opened, {enter({{"K13:", "0"}})});
    EXPECT_EQ(opened.label("surfaceConditionLabel"), "Unit hyperboloid, not the quadric: K13 = 0");
    EXPECT_TRUE(isShown(opened, "surfaceConditionLabel"));
    QStatusTipEvent tip("Create a new viewer");
    QCoreApplication::sendEvent(&opened.window(), &tip);
    opened.activate(opened.hyperboloid(Hyperboloid::MSPACE));
    EXPECT_TRUE(isShown(opened, "surfaceConditionLabel")) << "after a status tip";
    answerParameters(opened, {enter({{"K13:", "0.5"}, {"K2 :", "1"}})});
    EXPECT_EQ(opened.label("surfaceConditionLabel"), "No surface: K1 = K2");
    answerParameters(opened, {enter({{"K2 :", "1.61"}})});
    EXPECT_FALSE(isShown(opened, "surfaceConditionLabel"));
}

TEST(SurfaceStatusTest, SaysSoAtOnceWhenCodeSetsTheParameters) {
    const OpenedWindow opened;
    opened.window().refresh_hyperboloids(1, 1.5, 1, 0.5, 0.5, 0, 0, 1, 8, 8, 0.3, 7, 7, 0.02, 0.03);
    EXPECT_TRUE(opened.label("surfaceConditionLabel").startsWith("Point, not the quadric: "));
}

TEST(SurfaceStatusTest, SaysWhatRoundingHasShapedAndExplainsItInTheTip) {
    const OpenedWindow opened;
    opened.window().refresh_hyperboloids(3.63, 86.89, 60.11, 0.14, -10.71, 0, 0, 13.77, 8, 8, 0.3,
                                         7, 7, 0.02, 0.03);
    const QString text = "Shaped by rounding, not the quadric: Û1 = Û2 = 0 (a cone)";
    EXPECT_EQ(opened.label("surfaceConditionLabel"), text);
    QTextDocument tip;
    tip.setHtml(opened.window().findChild<QLabel*>("surfaceConditionLabel")->toolTip());
    EXPECT_EQ(tip.toPlainText(),
              text + "\nThe quadric is so nearly a cone that rounding decides what is drawn: its "
                     "size and its colours mean nothing.");
}

TEST(SurfaceStatusTest, LeavesTheWindowAsSmallAsItCanBe) {
    const OpenedWindow opened;
    opened.tie(opened.firstHelix(), opened.hyperboloid(Hyperboloid::MSPACE));
    opened.window().refresh_hyperboloids(1, 1.5, 1, 0, 0, 0, 0, 0, 8, 8, 0.3, 7, 7, 0.02, 0.03);
    opened.window().statusBar()->showMessage("Move the focus to the previous window");
    const QSize small(500, 400);
    opened.window().resize(small);
    EXPECT_TRUE(waitUntil([&] { return opened.window().size() == small; }));
}

TEST(SurfaceStatusTest, TellsWhichHelixEachSurfaceSteersBeforeOneIsClicked) {
    const OpenedWindow opened;
    EXPECT_TRUE(isShown(opened, "steeringLabel"));
    expectRightSteering(opened, "at the start");
    EXPECT_EQ(steeredBy(opened, Hyperboloid::MSPACE), "no helix");
}

TEST(SurfaceStatusTest, KeepsUpWithEveryChangeOfWhatIsSteered) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    expectRightSteering(opened, "a new helix");
    opened.tie(*opened.helices()[1], opened.hyperboloid(Hyperboloid::MSPACE));
    expectRightSteering(opened, "activated");
    EXPECT_EQ(steeredBy(opened, Hyperboloid::MSPACE), opened.helices()[1]->windowTitle());
    opened.hyperboloid(Hyperboloid::MSPACE).moveSphere(HyperboloidFrame::DOWN);
    expectRightSteering(opened, "stepped");
    EXPECT_EQ(steeredBy(opened, Hyperboloid::USPACE), opened.helices()[1]->windowTitle());
    opened.tie(opened.firstHelix(), opened.hyperboloid(Hyperboloid::XSPACE));
    answerParameters(opened, {enter({{"K3 :", "1.23"}})});
    expectRightSteering(opened, "new parameters");
    opened.closeFrame(*opened.helices()[1]);
    expectRightSteering(opened, "closed");
    EXPECT_EQ(steeredBy(opened, Hyperboloid::XSPACE), "no helix");
    EXPECT_TRUE(
        opened.label("steeringLabel").endsWith(": activate a helix, then one of these views"));
}

TEST(SurfaceStatusTest, TellsWhatIsSteeredWhenCodeHasMovedTheHelices) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    opened.tie(opened.firstHelix(), opened.hyperboloid(Hyperboloid::USPACE));
    opened.window().refresh_helixs(64 * 64);
    expectRightSteering(opened, "moved");
    EXPECT_EQ(steeredBy(opened, Hyperboloid::USPACE), opened.firstHelix().windowTitle());
}

TEST(SurfaceStatusTest, KeepsRefusedNumbersInSightUntilOthersAreAcceptedOrGivenUp) {
    const OpenedWindow opened;
    const auto expectRefused = [&](const char* numbers) {
        EXPECT_TRUE(isShown(opened, "refusedParametersLabel"));
        EXPECT_TRUE(opened.label("refusedParametersLabel").contains(numbers))
            << opened.label("refusedParametersLabel").toStdString();
    };
    answerParameters(opened, {enter({{"K13:", "2.97"}, {"<html>&Ucirc;</html>2:", "0.61"}}),
                              [&](QWidget& box) {
                                  expectRefused("K13 = 2.97, K23 = 0.50, Û2 = 0.61: K13²");
                                  click(box, "Ok");
                              },
                              [&](QWidget& dialog) {
                                  expectRefused("K13 = 2.97");
                                  enter({{"K1 :", "7.31"}})(dialog);
                              },
                              [&](QWidget& box) {
                                  expectRefused("K1 = 7.31, K2 = 1.50, K3 = 1.00, K13 = 0.50, "
                                                "K23 = 0.50: K1 ≤ K2");
                                  click(box, "Ok");
                              },
                              enter({{"K1 :", "1.31"}})});
    EXPECT_FALSE(isShown(opened, "refusedParametersLabel"));
    answerParameters(opened,
                     {enter({{"K3 :", "0"}}), seeError(":/images/err1.png"), [](QWidget& dialog) {
                          pressEscape(dialog);
                      }});
    EXPECT_FALSE(isShown(opened, "refusedParametersLabel"));
}

TEST(SurfaceStatusTest, TellsAHelixsPointFromTheBeginning) {
    const OpenedWindow opened;
    const HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    HelixFrame& helix = opened.firstHelix();
    EXPECT_EQ(opened.label("viewerTitleLabel"), "Helix Viewer");
    const QString point = opened.label("helixPointLabel");
    EXPECT_EQ(point, helix.pointText());
    helix.showU(u.getVertex(0, 0), u.getVertex(0, 1), u.getVertex(0, 2));
    EXPECT_EQ(opened.label("viewerTitleLabel"), point);
    EXPECT_EQ(opened.label("helixPointLabel"), "") << "said by the title now";
    opened.tie(helix, u);
    EXPECT_EQ(opened.label("steeredHelixLabel"), helix.windowTitle() + ": " + point);
}
