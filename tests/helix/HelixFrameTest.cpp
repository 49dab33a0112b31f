#include "helix/HelixFrame.h"

#include "helix/HelixNames.h"
#include "tests/support/RecordingOwner.h"
#include "tests/support/ReplacementCounter.h"
#include "tests/support/SceneReader.h"
#include "tests/support/ViewDriver.h"
#include "tests/support/Waiting.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoSeparator.h>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace {

/** A helix frame without a main window, initialized. */
class LoneHelix {
public:
    LoneHelix() { frame.initialize(); }
    HelixFrame frame{1, 0.5F, 0.25F, 1, 0, 0, 17, true, nullptr};

    SoSeparator* tube() const {
        return SceneReader::childNamed(*frame.getSceneRoot(), HelixNames::tube);
    }
    SoSeparator* ribbon() const {
        return SceneReader::childNamed(*frame.getSceneRoot(), HelixNames::ribbon);
    }
    static std::vector<SbVec3f> points(const SoSeparator& part) {
        for (int i = 0; i < part.getNumChildren(); ++i) {
            if (auto* coordinates = dynamic_cast<SoCoordinate3*>(part.getChild(i))) {
                const SbVec3f* first = coordinates->point.getValues(0);
                return {first, first + coordinates->point.getNum()};
            }
        }
        return {};
    }
    static int pointCount(const SoSeparator& part) { return static_cast<int>(points(part).size()); }
};

/** An owner that looks at a helix as soon as it hears of another title. */
class LookingOwner : public FrameOwner {
public:
    void SayHypoImDead(SbName /*name*/) override {}
    void viewerTitleChanged() override {
        title = frame->viewerTitle();
        line = frame->getHelix().getLineVertices();
        torsion = frame->getHelix().getTorsion();
        index = frame->getIndex();
    }

    const HelixFrame* frame = nullptr;
    QString title;
    Helix::Table line;
    float torsion = 0;
    int index = 0;
};

} // namespace

TEST(HelixFrameTest, EachFrameGetsTheNextNameAndNoNameIsUsedTwice) {
    const int before = HelixFrame::helix_nb;
    const auto nameOf = [](int number) {
        return SbName((HelixNames::framePrefix + std::to_string(number)).c_str());
    };
    {
        const HelixFrame first(1, 0, 0, 1, 0, 0, 0, true, nullptr);
        EXPECT_EQ(first.getName(), nameOf(before + 1));
    }
    const HelixFrame second(1, 0, 0, 1, 0, 0, 0, true, nullptr);
    EXPECT_EQ(second.getName(), nameOf(before + 2));
    EXPECT_EQ(HelixFrame::helix_nb, before + 2);
}

TEST(HelixFrameTest, KnowsItsTypeItsVertexAndItsParameters) {
    LoneHelix lone;
    EXPECT_EQ(lone.frame.GetType(), "HelixFrame");
    EXPECT_EQ(HelixFrame::Type(), "HelixFrame");
    EXPECT_EQ(lone.frame.getIndex(), 17);
    lone.frame.SetVertexInd(3);
    EXPECT_EQ(lone.frame.getIndex(), 3);
    EXPECT_EQ(lone.frame.getHelix().getTorsion(), 0.25F);
}

TEST(HelixFrameTest, ShowsOneTubeAndOneRibbonBelowTheUpperStructure) {
    LoneHelix lone;
    EXPECT_EQ(SceneReader::childNames(*lone.frame.getSceneRoot()),
              (std::vector<std::string>{"Environment", "Separator", "Separator", "Separator",
                                        HelixNames::tube, HelixNames::ribbon}));
    lone.frame.Draw();
    lone.frame.Draw();
    EXPECT_EQ(SceneReader::countNamed(*lone.frame.getSceneRoot(), HelixNames::tube), 1);
    EXPECT_EQ(SceneReader::countNamed(*lone.frame.getSceneRoot(), HelixNames::ribbon), 1);
    EXPECT_EQ(lone.frame.getSceneRoot()->getNumChildren(), 6);
}

TEST(HelixFrameTest, BaseRedrawDoesNothing) {
    LoneHelix lone;
    const SoSeparator* tube = lone.tube();
    lone.frame.reDraw();
    EXPECT_EQ(lone.tube(), tube);
}

TEST(HelixFrameTest, RefreshTakesOverThePointAndShowsItsCoordinates) {
    LoneHelix lone;
    lone.frame.refresh(0.5F, 1, 0.25F, 42, 0, 1, 0);
    EXPECT_EQ(lone.frame.getIndex(), 42);
    EXPECT_EQ(lone.frame.viewerTitle(), "U = (0.5; 1; 0.25)");
    EXPECT_EQ(lone.frame.getHelix().getTorsion(), 0.25F);
    const Helix expected(0.5F, 1, 0.25F, 0, 1, 0);
    EXPECT_EQ(lone.frame.getHelix().getRadius(), expected.getRadius());
    for (int c = 0; c < 3; ++c) {
        EXPECT_EQ(lone.frame.getHelix().getLineVertex(100, c), expected.getLineVertex(100, c));
    }
    EXPECT_EQ(SceneReader::child<SoMaterial>(*lone.tube(), 0)->diffuseColor[0], SbColor(0, 1, 0));
    EXPECT_EQ(SceneReader::child<SoMaterial>(*lone.ribbon(), 0)->diffuseColor[0], SbColor(1, 0, 1));
}

TEST(HelixFrameTest, NumbersOfItsMakingAndOfARefreshEachReachTheirPlace) {
    HelixFrame frame(0.7F, -0.3F, 0.2F, 0.1F, 0.6F, 0.9F, 23, false, nullptr);
    EXPECT_EQ(frame.getHelix().getHelixColor(), (FloatTriple{0.1F, 0.6F, 0.9F}));
    EXPECT_EQ(frame.getHelix().getTorsion(), 0.2F);
    EXPECT_EQ(frame.getHelix().getPhi(), Helix(0.7F, -0.3F, 0.2F, 0, 0, 0).getPhi());
    EXPECT_EQ(frame.getIndex(), 23);
    frame.initialize();
    frame.refresh(-0.25F, 0.5F, 1.5F, 31, 0.8F, 0.4F, 0.3F);
    EXPECT_EQ(frame.getHelix().getHelixColor(), (FloatTriple{0.8F, 0.4F, 0.3F}));
    EXPECT_EQ(frame.getHelix().getTorsion(), 1.5F);
    EXPECT_EQ(frame.getHelix().getPhi(), Helix(-0.25F, 0.5F, 1.5F, 0, 0, 0).getPhi());
    EXPECT_EQ(frame.getIndex(), 31);
    EXPECT_FALSE(frame.close()) << "it does not close alone";
}

TEST(HelixFrameTest, RefreshShowsTheCoordinatesBeforeItSamplesTheTables) {
    LookingOwner owner;
    HelixFrame frame(1, 0.5F, 0.25F, 1, 0, 0, 17, true, &owner);
    frame.initialize();
    owner.frame = &frame;
    const Helix::Table before = frame.getHelix().getLineVertices();
    frame.refresh(-0.7F, 1.3F, 0.4F, 42, 0, 1, 0);
    EXPECT_EQ(owner.title, "U = (-0.7; 1.3; 0.4)");
    EXPECT_EQ(owner.torsion, 0.4F);
    EXPECT_EQ(owner.index, 42);
    EXPECT_EQ(owner.line, before);
    EXPECT_NE(frame.getHelix().getLineVertices(), before);
}

TEST(HelixFrameTest, TakesAVertexOfTheSurfaceAsItTakesItsNumbers) {
    HelixFrame frame({23, {0.7F, -0.3F, 0.2F}, {0.1F, 0.6F, 0.9F}}, true, nullptr);
    const Helix first(0.7F, -0.3F, 0.2F, 0.1F, 0.6F, 0.9F);
    EXPECT_EQ(frame.getIndex(), 23);
    EXPECT_EQ(frame.getHelix().getTubeVertices(), first.getTubeVertices());
    EXPECT_EQ(frame.getHelix().getHelixColor(), (FloatTriple{0.1F, 0.6F, 0.9F}));
    frame.initialize();
    frame.refresh({31, {-0.25F, 0.5F, 1.5F}, {0.8F, 0.4F, 0.3F}});
    const Helix second(-0.25F, 0.5F, 1.5F, 0.8F, 0.4F, 0.3F);
    EXPECT_EQ(frame.getIndex(), 31);
    EXPECT_EQ(frame.viewerTitle(), "U = (-0.25; 0.5; 1.5)");
    EXPECT_EQ(frame.pointText(), "U = (-0.25; 0.5; 1.5)");
    EXPECT_EQ(frame.getHelix().getRibbonVertices(), second.getRibbonVertices());
    EXPECT_EQ(frame.getHelix().getHelixColor(), (FloatTriple{0.8F, 0.4F, 0.3F}));
}

TEST(HelixFrameTest, TitleHasSixSignificantDigits) {
    LoneHelix lone;
    lone.frame.showU(1.0 / 3, -1234567.0, 1e-10);
    EXPECT_EQ(lone.frame.viewerTitle(), "U = (0.333333; -1.23457e+06; 1e-10)");
    // The float next to it is a little less than 0.1000015.
    lone.frame.showU(0.1000015000010, 0.5, -0.1000015000010);
    EXPECT_EQ(lone.frame.viewerTitle(), "U = (0.100002; 0.5; -0.100002)");
}

TEST(HelixFrameTest, StraightHelixIsStillDrawnAndTitled) {
    LoneHelix lone;
    lone.frame.refresh(0, 0, 2, 5, 1, 1, 0);
    EXPECT_EQ(lone.frame.viewerTitle(), "U = (0; 0; 2)");
    EXPECT_EQ(lone.frame.getHelix().getRadius(), 0);
    const float tubeRadius = lone.frame.getHelix().getTubeR();
    for (const SbVec3f& point : LoneHelix::points(*lone.tube())) {
        EXPECT_NEAR(std::hypot(point[0], point[1]), tubeRadius, 1e-6);
    }
    // The first of each pair lies on the centre line.
    EXPECT_EQ(LoneHelix::points(*lone.ribbon())[0][0], 0);
    EXPECT_EQ(LoneHelix::points(*lone.ribbon())[0][1], 0);
}

TEST(HelixFrameTest, SettersWithoutRedrawLeaveTheSceneAlone) {
    LoneHelix lone;
    const SoSeparator* tube = lone.tube();
    lone.frame.set_tube_radius(0.02, false);
    lone.frame.set_ribbon_range(0.1, false);
    lone.frame.set_precision_tube(8, false);
    lone.frame.set_precision_line(20, false);
    lone.frame.set_nturns(3, false);
    EXPECT_EQ(lone.tube(), tube);
    const Helix& helix = lone.frame.getHelix();
    EXPECT_EQ(helix.getTubeR(), 0.02F);
    EXPECT_EQ(helix.getRibRange(), 0.1F);
    EXPECT_EQ(helix.getPrecisionTube(), 8U);
    EXPECT_EQ(helix.getPrecisionLine(), 20U);
    EXPECT_EQ(helix.getNTurns(), 3.0F);
    EXPECT_EQ(helix.getNbLineVertices(), 60U);
}

TEST(HelixFrameTest, TubeRadiusResamplesOnlyTheTubeAndReplacesBothParts) {
    LoneHelix lone;
    const std::vector<SbVec3f> tubeBefore = LoneHelix::points(*lone.tube());
    const std::vector<SbVec3f> ribbonBefore = LoneHelix::points(*lone.ribbon());
    ReplacementCounter ribbons(*lone.frame.getSceneRoot(), HelixNames::ribbon);
    lone.frame.set_ribbon_range(0.2, false);
    lone.frame.set_tube_radius(0.02, true);
    EXPECT_NE(LoneHelix::points(*lone.tube()), tubeBefore);
    EXPECT_EQ(LoneHelix::points(*lone.ribbon()), ribbonBefore);
    EXPECT_EQ(ribbons.take(), 1);
    EXPECT_EQ(lone.frame.getSceneRoot()->getNumChildren(), 6);
}

TEST(HelixFrameTest, RibbonRangeResamplesOnlyTheRibbon) {
    LoneHelix lone;
    const std::vector<SbVec3f> tubeBefore = LoneHelix::points(*lone.tube());
    lone.frame.set_tube_radius(0.02, false);
    lone.frame.set_ribbon_range(0.2, true);
    EXPECT_EQ(LoneHelix::points(*lone.tube()), tubeBefore);
    const std::vector<SbVec3f> ribbon = LoneHelix::points(*lone.ribbon());
    EXPECT_NEAR((ribbon[1] - ribbon[0]).length(), 0.2, 1e-5);
}

TEST(HelixFrameTest, SettersSampleWhatTheyResize) {
    LoneHelix lone;
    lone.frame.set_precision_tube(8, true);
    lone.frame.set_precision_line(20, true);
    lone.frame.set_nturns(3, true);
    Helix expected(1, 0.5F, 0.25F, 1, 0, 0);
    expected.setPrecisionTube(8);
    expected.setPrecisionLine(20);
    expected.setNTurns(3);
    expected.init_tables(true, true, true);
    expected.generatePoints(true, true, true);
    EXPECT_EQ(lone.frame.getHelix().getLineVertices(), expected.getLineVertices());
    EXPECT_EQ(lone.frame.getHelix().getTubeVertices(), expected.getTubeVertices());
    EXPECT_EQ(lone.frame.getHelix().getRibbonVertices(), expected.getRibbonVertices());
}

TEST(HelixFrameTest, TubePrecisionResamplesTheTubeAlongTheSameLine) {
    LoneHelix lone;
    const std::vector<SbVec3f> ribbonBefore = LoneHelix::points(*lone.ribbon());
    lone.frame.set_ribbon_range(0.2, false);
    lone.frame.set_precision_tube(8, true);
    EXPECT_EQ(LoneHelix::points(*lone.ribbon()), ribbonBefore);
    const SbVec3f center(lone.frame.getHelix().getLineVertex(0, 0),
                         lone.frame.getHelix().getLineVertex(0, 1),
                         lone.frame.getHelix().getLineVertex(0, 2));
    EXPECT_NEAR((LoneHelix::points(*lone.tube())[3] - center).length(),
                lone.frame.getHelix().getTubeR(), 1e-5);
}

TEST(HelixFrameTest, SettersWithRedrawGiveThePartsTheirNewSizes) {
    LoneHelix lone;
    lone.frame.set_precision_tube(8, true);
    EXPECT_EQ(LoneHelix::pointCount(*lone.tube()), 8 * 250);
    lone.frame.set_precision_line(20, true);
    EXPECT_EQ(LoneHelix::pointCount(*lone.tube()), 8 * 100);
    EXPECT_EQ(LoneHelix::pointCount(*lone.ribbon()), 2 * 100);
    lone.frame.set_nturns(3, true);
    EXPECT_EQ(LoneHelix::pointCount(*lone.tube()), 8 * 60);
}

TEST(HelixFrameTest, TubeIsLitOnTheSideThatIsSeen) {
    HelixFrame frame(1, 0.5F, 0.25F, 0, 1, 0, 0, true, nullptr);
    frame.set_ribbon_range(0, false);
    frame.set_tube_radius(0.3, false);
    frame.initialize();
    frame.reDraw(true, true, true);
    frame.show();
    EXPECT_TRUE(waitUntil([&] { return ViewDriver(frame).isDrawn(); }));
    const QImage picture = ViewDriver(frame).grab();
    int lit = 0;
    int covered = 0;
    // The upper left quarter: the axis cross is in the lower right one.
    for (int y = 0; y < picture.height() / 2; ++y) {
        for (int x = 0; x < picture.width() / 2; ++x) {
            covered += picture.pixelColor(x, y).green() > 0 ? 1 : 0;
            lit += picture.pixelColor(x, y).green() > 100 ? 1 : 0;
        }
    }
    EXPECT_GT(covered, 1000);
    EXPECT_GT(lit, covered / 2);
}

TEST(HelixFrameTest, NoTurnsDrawNothingAndTurnsComeBack) {
    LoneHelix lone;
    lone.frame.show();
    EXPECT_TRUE(waitUntil([&] { return ViewDriver(lone.frame).isDrawn(); }));
    lone.frame.set_nturns(0, true);
    EXPECT_EQ(LoneHelix::pointCount(*lone.tube()), 0);
    EXPECT_TRUE(waitUntil([&] { return !ViewDriver(lone.frame).isDrawn(); }));
    lone.frame.set_nturns(5, true);
    EXPECT_TRUE(waitUntil([&] { return ViewDriver(lone.frame).isDrawn(); }));
}

TEST(HelixFrameTest, TellsItsOwnerOfEachTitleAndOfItsDeath) {
    RecordingOwner owner;
    SbName name;
    {
        HelixFrame frame(1, 0.5F, 0.25F, 1, 0, 0, 17, true, &owner);
        frame.initialize();
        name = frame.getName();
        EXPECT_EQ(owner.titleChanges, 0);
        frame.setTitle("Helix Viewer");
        frame.refresh(0.5F, 1, 0.25F, 42, 0, 1, 0);
        EXPECT_EQ(owner.titleChanges, 2);
        EXPECT_TRUE(owner.dead.empty());
    }
    EXPECT_EQ(owner.dead, std::vector<SbName>{name});
}
