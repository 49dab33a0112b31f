#include "hyperboloid/HyperboloidParameters.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounter.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace {

/** Parameters that the dialog accepts although something of the surface becomes degenerate. */
struct Degenerate {
    const char* name;
    double K1, K2, K3, K13, K23, U1, U2, U3;
};

void PrintTo(const Degenerate& parameters, std::ostream* out) {
    *out << parameters.name;
}

constexpr Degenerate startUp{"start", 1, 1.5, 1, 0.5, 0.5, 1, 0, 0};

// With uHat on the third axis the quadric is a cone: what lambda is the reciprocal of is 0 but for
// its roundings. They are of the wrong sign, so that the semi-axes are roots of negative numbers,
// or there are none.
constexpr Degenerate imaginaryCone{"NegativeLambda", 1.86, 3.4, 8.57, 1.06, -0.9, 0, 0, 2.79};
constexpr Degenerate imaginaryConeSwapped{
    "NegativeLambdaSwapped", 0.73, 3.86, 5.34, 0.22, 0.36, 0, 0, -1.19};
constexpr Degenerate collapsedCone{"CollapsedCone", 1.23, 3.79, 7.92, -1.14, -0.25, 0, 0, 1.8};

const std::vector<Degenerate> all{{"K1EqualsK2", 1.5, 1.5, 1, 0.5, 0.5, 1, 0, 0},
                                  {"K1EqualsK2WithoutK13", 1.5, 1.5, 1, 0, 0.5, 1, 0, 0},
                                  {"K1EqualsK2AtTheOrigin", 1, 1, 1, 0.5, 0.5, 0, 0, 0},
                                  {"WideRing", 1, 1.5, 1, 0.5, -0.5, 0.2, 3, 0},
                                  {"WideRingSwapped", 1, 1.5, 1, 0.5, 0.5, 1, 2, 0},
                                  imaginaryCone,
                                  collapsedCone,
                                  {"WithoutK13", 1, 1.5, 1, 0, 0.5, 1, 0, 0},
                                  {"WithoutK23", 1, 1.5, 1, 0.5, 0, 1, 0, 0},
                                  {"WithoutBoth", 1, 1.5, 1, 0, 0, 1, 0, 0},
                                  {"AtTheOrigin", 1, 1.5, 1, 0.5, 0.5, 0, 0, 0},
                                  {"Huge", 99.99, 100, 100, 50, 50, 100, -100, 100},
                                  {"Tiny", 0.01, 100, 100, 0.01, 0.01, 100, -100, 100}};

void apply(const OpenedWindow& opened, const Degenerate& p) {
    MainWindow& window = opened.window();
    ASSERT_EQ(window.verify_param(p.K1, p.K2, p.K3, p.K13, p.K23), 0);
    const auto oldCount =
        static_cast<int>(opened.hyperboloid(Hyperboloid::USPACE).getNumVertices());
    window.refresh_hyperboloids(p.K1, p.K2, p.K3, p.K13, p.K23, p.U1, p.U2, p.U3, 64, 64, 0.3, 7, 7,
                                0.02, 0.03);
    window.refresh_helixs(oldCount);
    RedrawCounter::settle();
}

void viewAll(const OpenedWindow& opened) {
    for (const SoQtGeneralViewerFrame* frame : opened.frames()) {
        frame->getViewer()->viewAll();
    }
    RedrawCounter::settle();
}

/** The numbers that a camera consists of. */
std::vector<float> stateOf(const SoCamera& camera) {
    const SbVec3f& position = camera.position.getValue();
    const SbRotation& rotation = camera.orientation.getValue();
    std::vector<float> numbers{position[0],
                               position[1],
                               position[2],
                               camera.nearDistance.getValue(),
                               camera.farDistance.getValue(),
                               camera.focalDistance.getValue()};
    numbers.insert(numbers.end(), rotation.getValue(), rotation.getValue() + 4);
    if (const auto* orthographic = dynamic_cast<const SoOrthographicCamera*>(&camera)) {
        numbers.push_back(orthographic->height.getValue());
    }
    return numbers;
}

std::vector<std::vector<float>> cameras(const OpenedWindow& opened) {
    std::vector<std::vector<float>> states;
    for (const SoQtGeneralViewerFrame* frame : opened.frames()) {
        states.push_back(stateOf(*frame->getViewer()->getCamera()));
    }
    return states;
}

void expectFiniteCameras(const OpenedWindow& opened, const char* when) {
    for (const std::vector<float>& state : cameras(opened)) {
        for (const float number : state) {
            EXPECT_TRUE(std::isfinite(number)) << when;
        }
    }
}

std::vector<QImage> pictures(const OpenedWindow& opened) {
    std::vector<QImage> grabbed;
    for (SoQtGeneralViewerFrame* frame : opened.frames()) {
        grabbed.push_back(ViewDriver(*frame).grab());
    }
    return grabbed;
}

/** A place of a view where the nearest thing is a vertex of the surface; invalid when nowhere. */
QPoint placeOnSurface(const HyperboloidFrame& frame) {
    const SbViewportRegion& region = frame.getViewer()->getViewportRegion();
    const SbVec2s size = region.getWindowSize();
    for (short y = 5; y < size[1]; y = static_cast<short>(y + 9)) {
        for (short x = 5; x < size[0]; x = static_cast<short>(x + 9)) {
            SoRayPickAction pick(region);
            pick.setPoint(SbVec2s(x, static_cast<short>(size[1] - 1 - y)));
            pick.apply(frame.getViewer()->getSceneManager()->getSceneGraph());
            if (pick.getPickedPoint() != nullptr && frame.get_index(pick.getPickedPoint()) > 0) {
                return {x, y};
            }
        }
    }
    return {-1, -1};
}

/** Uses every view with mouse and keys, as one who looks for what has vanished. */
void useEveryView(const OpenedWindow& opened) {
    for (SoQtGeneralViewerFrame* frame : opened.frames()) {
        const ViewDriver view(*frame);
        const QPoint middle(view.widget().width() / 2, view.widget().height() / 2);
        view.drag(Qt::LeftButton, middle, middle + QPoint(30, 20));
        view.drag(Qt::MiddleButton, middle, middle + QPoint(10, 30));
        view.click(Qt::RightButton, middle);
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_W, Qt::Key_D, Qt::Key_Space, Qt::Key_Space,
                                  Qt::Key_Space, Qt::Key_P, Qt::Key_O}) {
            view.key(key);
        }
    }
    RedrawCounter::settle();
}

} // namespace

/** All of them come and go in one window: opening one costs more than what is looked at. */
class DegenerateParameters : public testing::TestWithParam<Degenerate> {
protected:
    static void SetUpTestSuite() { shared = std::make_unique<OpenedWindow>(); }
    static void TearDownTestSuite() { shared.reset(); }

    const OpenedWindow& opened = *shared;

private:
    static inline std::unique_ptr<const OpenedWindow> shared;
};

TEST_P(DegenerateParameters, ViewsAreUsableWhileTheyLastAndPicksWorkAgainAfterwards) {
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    opened.tie(opened.firstHelix(), x);
    apply(opened, GetParam());
    expectFiniteCameras(opened, "redrawn");
    viewAll(opened);
    expectFiniteCameras(opened, "everything viewed");
    useEveryView(opened);
    expectFiniteCameras(opened, "used");

    apply(opened, startUp);
    viewAll(opened);
    opened.tie(opened.firstHelix(), x);
    x.refresh_hypos(0);
    x.refresh_helix(0);
    const QPoint place = placeOnSurface(x);
    ASSERT_GE(place.x(), 0);
    ViewDriver(x).click(Qt::RightButton, place);
    EXPECT_GT(opened.firstHelix().getIndex(), 0);
    EXPECT_TRUE(std::isfinite(opened.firstHelix().getHelix().getTorsion()));
}

TEST_P(DegenerateParameters, ValidValuesBringBackThePicturesOfBefore) {
    for (const int transparency : {0, 60}) {
        SCOPED_TRACE(transparency);
        opened.call("refreshHyperboloidTransp", Q_ARG(int, transparency));
        // A sphere is put at the end of its scene when it moves: once before the picture, too.
        apply(opened, startUp);
        const std::vector<QImage> before = pictures(opened);
        const std::vector<std::vector<float>> camerasBefore = cameras(opened);
        apply(opened, GetParam());
        EXPECT_TRUE(waitUntil([&] { return pictures(opened) != before; }));
        expectFiniteCameras(opened, "redrawn");
        apply(opened, startUp);
        EXPECT_TRUE(waitUntil([&] { return pictures(opened) == before; }));
        EXPECT_EQ(cameras(opened), camerasBefore) << "the clipping planes, too";
    }

    viewAll(opened);
    const std::vector<std::vector<float>> fitted = cameras(opened);
    apply(opened, GetParam());
    viewAll(opened);
    apply(opened, startUp);
    viewAll(opened);
    EXPECT_EQ(cameras(opened), fitted);
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
}

INSTANTIATE_TEST_SUITE_P(Accepted, DegenerateParameters, testing::ValuesIn(all),
                         [](const testing::TestParamInfo<Degenerate>& tested) {
                             return tested.param.name;
                         });

TEST(DegenerateParametersTest, SomeOfThemReallyAreNotFinite) {
    const OpenedWindow opened;
    apply(opened, all.front());
    for (int space = 0; space < 3; ++space) {
        EXPECT_FALSE(std::isfinite(opened.hyperboloid(space).getVertex(0, 0)));
    }
    EXPECT_FALSE(std::isfinite(opened.firstHelix().getHelix().getRadius()));
}

TEST(DegenerateParametersTest, ImaginaryConeIsNowhereInEverySpace) {
    const OpenedWindow opened;
    for (const Degenerate& cone : {imaginaryCone, imaginaryConeSwapped}) {
        apply(opened, cone);
        for (int space = 0; space < 3; ++space) {
            for (const int vertex : {0, 1234, 4095}) {
                for (int c = 0; c < 3; ++c) {
                    EXPECT_TRUE(std::isnan(opened.hyperboloid(space).getVertex(vertex, c)))
                        << cone.name << ", space " << space;
                }
            }
        }
    }
}

TEST(DegenerateParametersTest, CollapsedConeIsItsCentreInEverySpace) {
    const OpenedWindow opened;
    apply(opened, collapsedCone);
    const HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    const HyperboloidFrame& m = opened.hyperboloid(Hyperboloid::MSPACE);
    for (const int vertex : {0, 1234, 4095}) {
        for (int c = 0; c < 3; ++c) {
            EXPECT_EQ(x.getVertex(vertex, c), 0.0F);
            // The centre of a cone whose uHat is on the third axis is uHat, and its m the origin.
            EXPECT_NEAR(u.getVertex(vertex, c), c == 2 ? collapsedCone.U3 : 0.0, 1e-6);
            EXPECT_NEAR(m.getVertex(vertex, c), 0.0, 1e-5);
        }
    }
}

TEST(DegenerateParametersTest, LinesThatAreNowhereDoNotHideTheSurfaceFromTheMouse) {
    const OpenedWindow opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    opened.tie(opened.firstHelix(), u);
    apply(opened, {"WithoutK13", 1, 1.5, 1, 0, 0.5, 1, 0, 0});
    viewAll(opened);
    const QPoint place = placeOnSurface(u);
    ASSERT_GE(place.x(), 0);
    ViewDriver(u).click(Qt::RightButton, place);
    EXPECT_GT(opened.firstHelix().getIndex(), 0);
}

TEST(DegenerateParametersTest, NewHelixOnASurfaceThatIsNowhereComesToLifeWithIt) {
    const OpenedWindow opened;
    apply(opened, all.front());
    opened.action("newAct").trigger();
    EXPECT_TRUE(std::isnan(opened.helices()[1]->getHelix().getRadius()));
    apply(opened, startUp);
    EXPECT_TRUE(std::isfinite(opened.helices()[1]->getHelix().getRadius()));
    opened.helices()[1]->getViewer()->viewAll();
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
}
