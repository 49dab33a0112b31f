#include "tests/support/OpenedWindow.h"
#include "tests/support/SceneReader.h"

#include "viewer/SoQtGeneralViewer.h"
#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoSeparator.h>
#include <gtest/gtest.h>
#include <optional>

namespace {

/** A vertex that a click on its place in the view hits, and that place. */
struct Target {
    int index;
    QPoint position;
};

/** What the scene library's own pick finds at a place of a view. */
std::optional<int> vertexUnder(const HyperboloidFrame& frame, QPoint position) {
    const SbViewportRegion& region = frame.getViewer()->getViewportRegion();
    SoRayPickAction pick(region);
    const int height = region.getWindowSize()[1];
    pick.setPoint(
        SbVec2s(static_cast<short>(position.x()), static_cast<short>(height - 1 - position.y())));
    pick.apply(frame.getViewer()->getSceneManager()->getSceneGraph());
    const SoPickedPoint* point = pick.getPickedPoint();
    if (point == nullptr || !frame.is_point_in_hyperboloid(point)) {
        return std::nullopt;
    }
    return frame.get_index(point);
}

/** A place where the surface is in front, off the middle of the grid. */
Target findTarget(const HyperboloidFrame& frame) {
    const QWidget& widget = ViewDriver(const_cast<HyperboloidFrame&>(frame)).widget();
    for (int y = widget.height() / 3; y < widget.height(); y += 7) {
        for (int x = widget.width() / 3; x < widget.width(); x += 7) {
            const std::optional<int> index = vertexUnder(frame, QPoint(x, y));
            if (index && *index != 0) {
                return {*index, QPoint(x, y)};
            }
        }
    }
    ADD_FAILURE() << "the surface is nowhere in front";
    return {0, QPoint()};
}

SbVec3f spherePosition(const HyperboloidFrame& frame, const HelixFrame& helix) {
    const SoSeparator* sphere =
        SceneReader::childNamed(SceneReader::phongBranch(*frame.getSceneRoot()), helix.getName());
    return SceneReader::child<SoTransform>(*sphere, 1)->translation.getValue();
}

} // namespace

class PickingIn : public testing::TestWithParam<int> {};

TEST_P(PickingIn, RightButtonMovesTheSphereInAllSpacesAndReshapesTheHelix) {
    const OpenedWindow opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    HelixFrame& helix = opened.firstHelix();
    opened.tie(helix, frame);
    const Target target = findTarget(frame);
    ViewDriver(frame).click(Qt::RightButton, target.position);
    EXPECT_EQ(helix.getIndex(), target.index);
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    EXPECT_EQ(helix.getHelix().getTorsion(), u.getVertex(target.index, 2));
    for (int space = 0; space < 3; ++space) {
        HyperboloidFrame& brother = opened.hyperboloid(space);
        EXPECT_EQ(spherePosition(brother, helix),
                  SbVec3f(brother.getVertex(target.index, 0), brother.getVertex(target.index, 1),
                          brother.getVertex(target.index, 2)));
    }
    EXPECT_TRUE(opened.label("steeredHelixLabel").contains(helix.viewerTitle()));
    EXPECT_TRUE(helix.viewerTitle().startsWith("U = ("));
}

TEST_P(PickingIn, LeftButtonPicksInPickingModeOnly) {
    const OpenedWindow opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    opened.tie(opened.firstHelix(), frame);
    const Target target = findTarget(frame);
    const ViewDriver driver(frame);
    driver.click(Qt::LeftButton, target.position);
    EXPECT_EQ(opened.firstHelix().getIndex(), 0);
    driver.setPickingMode(true);
    driver.click(Qt::LeftButton, target.position);
    EXPECT_EQ(opened.firstHelix().getIndex(), target.index);
}

TEST_P(PickingIn, MiddleButtonPicksInPickingMode) {
    const OpenedWindow opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    opened.tie(opened.firstHelix(), frame);
    const Target target = findTarget(frame);
    const ViewDriver driver(frame);
    driver.setPickingMode(true);
    driver.click(Qt::MiddleButton, target.position);
    EXPECT_EQ(opened.firstHelix().getIndex(), target.index);
}

TEST_P(PickingIn, BackgroundAndDecorationsAreNoVertices) {
    const OpenedWindow opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    opened.tie(opened.firstHelix(), frame);
    frame.refresh_helix(100);
    const ViewDriver driver(frame);
    driver.click(Qt::RightButton, QPoint(2, 2));
    EXPECT_EQ(opened.firstHelix().getIndex(), 100);
}

TEST_P(PickingIn, NothingHappensWithoutATiedHelix) {
    const OpenedWindow opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    opened.activate(frame);
    const Target target = findTarget(frame);
    frame.PrevHelixDead();
    ViewDriver(frame).click(Qt::RightButton, target.position);
    EXPECT_EQ(opened.firstHelix().getIndex(), 0);
}

TEST_P(PickingIn, EveryDirectionKeySteps) {
    struct Step {
        Qt::Key key;
        Qt::KeyboardModifier modifier;
        int direction;
    };
    const OpenedWindow opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    HelixFrame& helix = opened.firstHelix();
    opened.tie(helix, frame);
    const QWidget& widget = ViewDriver(frame).widget();
    for (const Step& step : {Step{Qt::Key_W, Qt::NoModifier, HyperboloidFrame::UP},
                             Step{Qt::Key_Up, Qt::NoModifier, HyperboloidFrame::UP},
                             Step{Qt::Key_8, Qt::KeypadModifier, HyperboloidFrame::UP},
                             Step{Qt::Key_S, Qt::NoModifier, HyperboloidFrame::DOWN},
                             Step{Qt::Key_Down, Qt::NoModifier, HyperboloidFrame::DOWN},
                             Step{Qt::Key_2, Qt::KeypadModifier, HyperboloidFrame::DOWN},
                             Step{Qt::Key_D, Qt::NoModifier, HyperboloidFrame::RIGHT},
                             Step{Qt::Key_Right, Qt::NoModifier, HyperboloidFrame::RIGHT},
                             Step{Qt::Key_6, Qt::KeypadModifier, HyperboloidFrame::RIGHT},
                             Step{Qt::Key_A, Qt::NoModifier, HyperboloidFrame::LEFT},
                             Step{Qt::Key_Left, Qt::NoModifier, HyperboloidFrame::LEFT},
                             Step{Qt::Key_4, Qt::KeypadModifier, HyperboloidFrame::LEFT}}) {
        frame.refresh_helix(64 * 10 + 20);
        frame.moveSphere(step.direction);
        const int expected = helix.getIndex();
        EXPECT_NE(expected, 64 * 10 + 20);
        frame.refresh_helix(64 * 10 + 20);
        QTest::keyClick(const_cast<QWidget*>(&widget), step.key, step.modifier);
        EXPECT_EQ(helix.getIndex(), expected) << "key " << step.key;
    }
}

TEST_P(PickingIn, DirectionKeyWithoutATiedHelixNeverReachesTheExaminer) {
    const OpenedWindow opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    opened.activate(frame);
    frame.PrevHelixDead();
    ViewDriver(frame).key(Qt::Key_S);
    EXPECT_FALSE(frame.getViewer()->isSeekMode());
    EXPECT_EQ(opened.firstHelix().getIndex(), 0);
}

INSTANTIATE_TEST_SUITE_P(EverySpace, PickingIn, testing::Values(0, 1, 2));

TEST(Picking, ScenesTellTheMeshFromEverythingElse) {
    const OpenedWindow opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const SoSeparator* sphere = SceneReader::childNamed(SceneReader::phongBranch(*u.getSceneRoot()),
                                                        opened.firstHelix().getName());
    ASSERT_NE(sphere, nullptr);
    const SbVec3f center = SceneReader::child<SoTransform>(*sphere, 1)->translation.getValue();
    SoRayPickAction pick(u.getViewer()->getViewportRegion());
    pick.setRay(center + SbVec3f(0.05F, 0.05F, 0.31F), SbVec3f(0, 0, -1), 0.0F, 0.3F);
    pick.apply(u.getSceneRoot());
    ASSERT_NE(pick.getPickedPoint(), nullptr);
    EXPECT_FALSE(u.is_point_in_hyperboloid(pick.getPickedPoint()));
    EXPECT_EQ(u.get_index(pick.getPickedPoint()), -1);
}
