#include "hyperboloid/HyperboloidNames.h"
#include "tests/support/LinkedFrames.h"
#include "tests/support/SceneReader.h"
#include "tests/support/Spheres.h"
#include "tests/support/VertexHelix.h"

#include "viewer/SoQtGeneralViewer.h"
#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/events/SoMouseButtonEvent.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace {

/** A vertex that a click on its place in the view hits, and that place. */
struct Target {
    int index = 0;
    QPoint position;
};

/** A place of a view as the scene library counts it: from the lower left corner. */
SbVec2s scenePosition(const HyperboloidFrame& frame, QPoint position) {
    const int height = frame.getViewer()->getViewportRegion().getWindowSize()[1];
    return {static_cast<short>(position.x()), static_cast<short>(height - 1 - position.y())};
}

/** What the scene library's own pick finds at a place of a view. */
class PickAt {
public:
    PickAt(const HyperboloidFrame& pickedFrame, QPoint position)
        : frame(&pickedFrame)
        , pick(pickedFrame.getViewer()->getViewportRegion()) {
        pick.setPoint(scenePosition(pickedFrame, position));
        pick.apply(pickedFrame.getViewer()->getSceneManager()->getSceneGraph());
    }

    std::optional<int> vertex() const {
        const SoPickedPoint* point = pick.getPickedPoint();
        if (point == nullptr || point->getPath()->getTail()->getName() != "HyperboloidMesh") {
            return std::nullopt;
        }
        return point->getMaterialIndex();
    }

    /** What the frame takes the nearest point for. */
    int frameIndex() const { return frame->get_index(pick.getPickedPoint()); }

    /** Whether what is in front belongs to a node of this name. */
    bool isIn(const SbName& name) const {
        const SoPickedPoint* point = pick.getPickedPoint();
        for (int i = 0; point != nullptr && i < point->getPath()->getLength(); ++i) {
            if (point->getPath()->getNode(i)->getName() == name) {
                return true;
            }
        }
        return false;
    }

private:
    const HyperboloidFrame* frame;
    SoRayPickAction pick;
};

/** A place where the surface is in front, off the middle of the grid, at an odd vertex. */
Target findTarget(const HyperboloidFrame& frame) {
    const QWidget& widget = ViewDriver(const_cast<HyperboloidFrame&>(frame)).widget();
    for (int y = widget.height() / 3; y < widget.height(); y += 7) {
        for (int x = widget.width() / 3; x < widget.width(); x += 7) {
            const std::optional<int> index = PickAt(frame, QPoint(x, y)).vertex();
            if (index && *index % 2 == 1) {
                return {*index, QPoint(x, y)};
            }
        }
    }
    ADD_FAILURE() << "the surface is nowhere in front";
    return {0, QPoint()};
}

/** Moves a helix to a vertex whose sphere is in front of the surface; the sphere's place. */
QPoint bringSphereToTheFront(HyperboloidFrame& frame, HelixFrame& helix) {
    frame.SetPreviousHelix(&helix);
    const ViewDriver driver(frame);
    for (int vertex = 100; vertex < static_cast<int>(frame.getNumVertices()); vertex += 37) {
        frame.refresh_hypos(vertex);
        frame.refresh_helix(vertex);
        const QPoint position = driver.positionOf(spherePosition(frame, helix));
        if (PickAt(frame, position).isIn(helix.getName())) {
            return position;
        }
    }
    ADD_FAILURE() << "the sphere is nowhere in front";
    return {};
}

/** The tubes of a decoration, each from the first to the last point of its wall. */
std::vector<std::pair<SbVec3f, SbVec3f>> tubesOf(const HyperboloidFrame& frame, const char* name) {
    SoSearchAction search;
    search.setType(SoCoordinate3::getClassTypeId());
    search.setInterest(SoSearchAction::ALL);
    search.apply(SceneReader::childNamed(SceneReader::phongBranch(*frame.getSceneRoot()), name));
    std::vector<std::pair<SbVec3f, SbVec3f>> tubes;
    for (int i = 0; i < search.getPaths().getLength(); ++i) {
        const auto& points = static_cast<SoCoordinate3*>(search.getPaths()[i]->getTail())->point;
        tubes.emplace_back(points[0], points[points.getNum() - 1]);
    }
    return tubes;
}

/** A place where one of the axes is in front of everything else. */
QPoint findAxis(HyperboloidFrame& frame) {
    const ViewDriver driver(frame);
    for (const char* name : {HyperboloidNames::u3Axis, HyperboloidNames::u3ConstAxis}) {
        for (const auto& [from, to] : tubesOf(frame, name)) {
            for (float step = 0; step < 1; step += 0.01F) {
                const QPoint position = driver.positionOf(from + (to - from) * step);
                if (driver.widget().rect().contains(position) &&
                    PickAt(frame, position).isIn(name)) {
                    return position;
                }
            }
        }
    }
    ADD_FAILURE() << "no axis is anywhere in front";
    return {};
}

/** Hands a frame a mouse event of the scene library; what the frame answers. */
int sendButton(HyperboloidFrame& frame, SoMouseButtonEvent::Button button,
               SoButtonEvent::State state, QPoint position) {
    SoMouseButtonEvent event;
    event.setButton(button);
    event.setState(state);
    event.setPosition(scenePosition(frame, position));
    return frame.processSoEvent(&event);
}

constexpr SoMouseButtonEvent::Button leftButton = SoMouseButtonEvent::BUTTON1;
constexpr SoMouseButtonEvent::Button rightButton = SoMouseButtonEvent::BUTTON2;
constexpr SoMouseButtonEvent::Button middleButton = SoMouseButtonEvent::BUTTON3;

} // namespace

/** The space's frame, with the first helix tied to it. */
class PickingIn : public testing::TestWithParam<int> {
protected:
    PickingIn() {
        opened.showSideBySide();
        LinkedFrames::tie(helix, frame);
    }

    const LinkedFrames opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    HelixFrame& helix = opened.firstHelix();
};

TEST_P(PickingIn, RightButtonMovesTheSphereInAllSpacesAndReshapesTheHelix) {
    const Target target = findTarget(frame);
    const int titleChanges = opened.owner().titleChanges;
    ViewDriver(frame).click(Qt::RightButton, target.position);
    expectHelixOfVertex(helix, opened.hyperboloid(Hyperboloid::USPACE), target.index);
    for (int space = 0; space < 3; ++space) {
        HyperboloidFrame& brother = opened.hyperboloid(space);
        EXPECT_EQ(spherePosition(brother, helix),
                  SbVec3f(brother.getVertex(target.index, 0), brother.getVertex(target.index, 1),
                          brother.getVertex(target.index, 2)));
    }
    EXPECT_EQ(opened.owner().titleChanges, titleChanges + 1);
}

TEST_P(PickingIn, IndexIsTheLibrarysWhereverTheSurfaceIsInFront) {
    std::set<int> indices;
    const QWidget& widget = ViewDriver(frame).widget();
    for (int y = 0; y < widget.height(); y += 13) {
        for (int x = 0; x < widget.width(); x += 11) {
            const PickAt pick(frame, QPoint(x, y));
            if (const std::optional<int> vertex = pick.vertex()) {
                EXPECT_EQ(pick.frameIndex(), *vertex) << x << " " << y;
                indices.insert(*vertex);
            }
        }
    }
    EXPECT_GT(indices.size(), 50U);
}

TEST_P(PickingIn, LeftButtonPicksInPickingModeOnly) {
    const Target target = findTarget(frame);
    const ViewDriver driver(frame);
    driver.click(Qt::LeftButton, target.position);
    EXPECT_EQ(helix.getIndex(), 0);
    driver.setPickingMode(true);
    driver.click(Qt::LeftButton, target.position);
    EXPECT_EQ(helix.getIndex(), target.index);
}

TEST_P(PickingIn, MiddleButtonPicksInPickingMode) {
    const Target target = findTarget(frame);
    const ViewDriver driver(frame);
    driver.setPickingMode(true);
    driver.click(Qt::MiddleButton, target.position);
    EXPECT_EQ(helix.getIndex(), target.index);
}

TEST_P(PickingIn, BackgroundAndDecorationsAreNoVertices) {
    const QPoint onSphere = bringSphereToTheFront(frame, helix);
    const int index = helix.getIndex();
    const ViewDriver driver(frame);
    for (const QPoint position : {QPoint(2, 2), onSphere, findAxis(frame)}) {
        EXPECT_FALSE(PickAt(frame, position).vertex().has_value());
        driver.click(Qt::RightButton, position);
        EXPECT_EQ(helix.getIndex(), index);
        EXPECT_EQ(sendButton(frame, rightButton, SoButtonEvent::UP, position), 0);
        EXPECT_EQ(helix.getIndex(), index);
    }
}

TEST_P(PickingIn, PicksOnTheReleaseOnlyAndConsumesIt) {
    const Target target = findTarget(frame);
    for (const bool picking : {false, true}) {
        ViewDriver(frame).setPickingMode(picking);
        for (const SoMouseButtonEvent::Button button : {leftButton, rightButton, middleButton}) {
            // The picked sphere would cover its vertex.
            frame.refresh_hypos(0);
            frame.refresh_helix(0);
            EXPECT_EQ(sendButton(frame, button, SoButtonEvent::DOWN, target.position), 0);
            EXPECT_EQ(helix.getIndex(), 0);
            const bool picks = picking || button == rightButton;
            EXPECT_EQ(sendButton(frame, button, SoButtonEvent::UP, target.position), picks ? 1 : 0);
            EXPECT_EQ(helix.getIndex(), picks ? target.index : 0);
        }
    }
}

TEST_P(PickingIn, ReleaseWithoutATiedHelixGoesOnToTheExaminer) {
    const Target target = findTarget(frame);
    frame.PrevHelixDead();
    for (const bool picking : {false, true}) {
        ViewDriver(frame).setPickingMode(picking);
        for (const SoMouseButtonEvent::Button button : {leftButton, rightButton, middleButton}) {
            EXPECT_EQ(sendButton(frame, button, SoButtonEvent::UP, target.position), 0);
        }
    }
    EXPECT_EQ(helix.getIndex(), 0);
}

TEST_P(PickingIn, NothingHappensWithoutATiedHelix) {
    const Target target = findTarget(frame);
    frame.PrevHelixDead();
    ViewDriver(frame).click(Qt::RightButton, target.position);
    EXPECT_EQ(helix.getIndex(), 0);
}

TEST_P(PickingIn, EveryDirectionKeySteps) {
    struct Step {
        Qt::Key key;
        Qt::KeyboardModifier modifier;
        int direction;
    };
    const ViewDriver driver(frame);
    const std::vector<Step> steps{Step{Qt::Key_W, Qt::NoModifier, HyperboloidFrame::UP},
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
                                  Step{Qt::Key_4, Qt::KeypadModifier, HyperboloidFrame::LEFT}};
    for (const bool picking : {false, true}) {
        driver.setPickingMode(picking);
        for (const Step& step : steps) {
            frame.refresh_helix(64 * 10 + 20);
            frame.moveSphere(step.direction);
            const int expected = helix.getIndex();
            EXPECT_NE(expected, 64 * 10 + 20);
            frame.refresh_helix(64 * 10 + 20);
            QTest::keyClick(&driver.widget(), step.key, step.modifier);
            EXPECT_EQ(helix.getIndex(), expected) << "key " << step.key;
        }
    }
}

TEST_P(PickingIn, DirectionKeyWithoutATiedHelixNeverReachesTheExaminer) {
    frame.PrevHelixDead();
    ViewDriver(frame).key(Qt::Key_S);
    EXPECT_FALSE(frame.getViewer()->isSeekMode());
    EXPECT_EQ(helix.getIndex(), 0);
}

INSTANTIATE_TEST_SUITE_P(EverySpace, PickingIn, testing::Values(0, 1, 2));

TEST(Picking, VertexZeroIsAVertexLikeAnyOther) {
    const LinkedFrames opened;
    opened.showSideBySide();
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    HelixFrame& helix = opened.firstHelix();
    LinkedFrames::tie(helix, x);
    x.refresh_hypos(2000);
    x.refresh_helix(2000);
    const SbVec3f place(x.getVertex(0, 0), x.getVertex(0, 1), x.getVertex(0, 2));
    auto& camera = dynamic_cast<SoOrthographicCamera&>(*x.getViewer()->getCamera());
    camera.position = place + SbVec3f(20, 0, 0);
    camera.pointAt(place);
    camera.height = 3;
    x.getViewer()->render();
    const ViewDriver driver(x);
    const QPoint middle = driver.positionOf(place);
    // Beside it, beyond the seam, the last vertex of the row has the same place.
    std::optional<QPoint> found;
    for (int beside = -15; beside <= 15 && !found; ++beside) {
        for (int above = -15; above <= 15 && !found; ++above) {
            const QPoint position = middle + QPoint(beside, above);
            if (PickAt(x, position).vertex() == 0) {
                found = position;
            }
        }
    }
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(sendButton(x, rightButton, SoButtonEvent::UP, *found), 1);
    EXPECT_EQ(helix.getIndex(), 0);
    EXPECT_EQ(spherePosition(x, helix), place);
}

TEST(Picking, ScenesTellTheMeshFromEverythingElse) {
    const LinkedFrames opened;
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
