#include "tests/random/Dice.h"
#include "tests/support/KeptPictures.h"
#include "tests/support/LinkedFrames.h"
#include "viewer/OffscreenContexts.h"

#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <gtest/gtest.h>

namespace {

constexpr const char* otherSphere = "Helix_other";

/** Of frames whose pictures are compared often: smaller than a user can make them. */
constexpr QSize smallSize(230, 190);

void makeSmall(SoQtGeneralViewerFrame& frame) {
    frame.setMinimumSize(1, 1);
    frame.resize(smallSize);
}

/** A random user of linked frames, and what the frames show with kept pictures and without. */
class ComparedFrames {
public:
    explicit ComparedFrames(std::uint32_t seed)
        : dice(seed) {
        OffscreenContexts::install();
        opened.showSideBySide();
        LinkedFrames::tie(opened.firstHelix(), u());
        for (HyperboloidFrame* frame : all) {
            makeSmall(*frame);
            pictures.push_back(std::make_unique<KeptPictures>(*frame));
        }
    }

    /** Anything that a user does to a view; mostly steps. */
    void move() {
        using Move = void (ComparedFrames::*)();
        constexpr int shareOfSteps = 70;
        static const std::vector<Move> others{
            &ComparedFrames::pick,          &ComparedFrames::moveOther, &ComparedFrames::turn,
            &ComparedFrames::zoom,          &ComparedFrames::key,       &ComparedFrames::recolour,
            &ComparedFrames::makeGlass,     &ComparedFrames::reshape,   &ComparedFrames::resize,
            &ComparedFrames::drawElsewhere, &ComparedFrames::hide,
        };
        if (dice.percent(shareOfSteps)) {
            step();
        } else {
            (this->*dice.oneOf(others))();
        }
    }

    /** Expects each view to show what it shows when it is drawn wholly. */
    void expectSamePictures() {
        for (const auto& compared : pictures) {
            const QImage settled = compared->settled();
            kept += compared->drawnSurfaces() == 0 ? 1 : 0;
            EXPECT_EQ(settled, compared->wholly());
        }
    }

    /** How many of the compared pictures came about without a surface being drawn. */
    int keptPictures() const { return kept; }

private:
    HyperboloidFrame& u() const { return *all.front(); }
    HyperboloidFrame& any() { return *dice.oneOf(all); }
    SoCamera& anyCamera() { return *any().getViewer()->getCamera(); }
    int anyVertex() { return dice.below(static_cast<int>(u().getNumVertices())); }

    void step() { any().moveSphere(dice.below(4)); }
    void pick() {
        const int vertex = anyVertex();
        u().refresh_hypos(vertex);
        u().refresh_helix(vertex);
    }
    /** Often to the very place of the first. */
    void moveOther() {
        const int place = dice.percent(50) ? opened.firstHelix().getIndex() : anyVertex();
        for (HyperboloidFrame* frame : all) {
            frame->killSphere(otherSphere);
            frame->addNewSphere(otherSphere, place);
        }
    }
    void turn() {
        const auto part = [&] {
            return static_cast<float>(dice.hundredth(-1, 1));
        };
        SoCamera& camera = anyCamera();
        camera.orientation = SbRotation(SbVec3f(part(), 1, part()), part());
        camera.position.setValue(9 * part(), 9 * part(), 20);
    }
    void zoom() {
        SoCamera& camera = anyCamera();
        camera.scaleHeight(static_cast<float>(dice.hundredth(0.7, 1.4)));
    }
    void key() {
        ViewDriver(any()).key(
            dice.oneOf(std::vector<Qt::Key>{Qt::Key_Space, Qt::Key_P, Qt::Key_O}));
    }
    void recolour() {
        const int saturation = dice.between(20, 100);
        for (HyperboloidFrame* frame : all) {
            frame->setSaturation(saturation, true);
        }
    }
    void makeGlass() { any().setTransparency(dice.percent(60) ? 0 : 37, dice.percent(50)); }
    void reshape() {
        HyperboloidParameters parameters = HyperboloidParameters::of(u());
        parameters.K13 = dice.hundredth(-0.9, 0.9);
        parameters.verticalPrecision = dice.between(20, 50);
        for (HyperboloidFrame* frame : all) {
            frame->setParameters(parameters);
            frame->reDraw(true, true);
        }
        pick();
        moveOther();
    }
    void resize() {
        HyperboloidFrame& frame = any();
        frame.resize(smallSize.width() + dice.between(-20, 90),
                     smallSize.height() + dice.between(-20, 90));
        QCoreApplication::processEvents();
    }
    void drawElsewhere() {
        SoOffscreenRenderer renderer(SbViewportRegion(90, 70));
        EXPECT_TRUE(renderer.render(any().getSceneRoot()));
    }
    void hide() {
        HyperboloidFrame& frame = any();
        frame.hide();
        RedrawCounter::settle();
        frame.show();
        EXPECT_TRUE(waitUntil([&] { return ViewDriver(frame).isDrawn(); }));
    }

    const LinkedFrames opened;
    const std::vector<HyperboloidFrame*> all{&opened.hyperboloid(Hyperboloid::USPACE),
                                             &opened.hyperboloid(Hyperboloid::XSPACE),
                                             &opened.hyperboloid(Hyperboloid::MSPACE)};
    std::vector<std::unique_ptr<KeptPictures>> pictures;
    Dice dice;
    int kept = 0;
};

} // namespace

TEST(KeptSurface, ShowsTheSameAsASurfaceThatIsAlwaysDrawn) {
    constexpr std::uint32_t seed = 20260814;
    constexpr int moves = 200;
    ComparedFrames compared(seed);
    for (int i = 0; i < moves && !testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE(i);
        compared.move();
        compared.expectSamePictures();
    }
    EXPECT_GT(compared.keptPictures(), moves);
}

class KeptSurfaceIn : public testing::TestWithParam<int> {};

// Also where rounding could move the box around the scene, and with it the camera's planes.
TEST_P(KeptSurfaceIn, IsNotDrawnForAStep) {
    constexpr int start = 777;
    constexpr int steps = 60;
    const LinkedFrames opened;
    opened.showSideBySide();
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    for (SoQtGeneralViewerFrame* shown : opened.frames()) {
        makeSmall(*shown);
    }
    LinkedFrames::tie(opened.firstHelix(), frame);
    frame.refresh_hypos(start);
    frame.refresh_helix(start);
    KeptPictures pictures(frame);
    pictures.shown();
    pictures.shown();
    pictures.drawnSurfaces();
    for (int i = 0; i < steps; ++i) {
        frame.moveSphere(i % 4 == 0 ? HyperboloidFrame::DOWN : HyperboloidFrame::LEFT);
        pictures.settled();
        EXPECT_EQ(pictures.drawnSurfaces(), 0) << "step " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(EverySpace, KeptSurfaceIn, testing::Range(0, 3));
