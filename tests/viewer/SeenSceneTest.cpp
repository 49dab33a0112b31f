#include "viewer/SeenScene.h"

#include "tests/support/SceneReader.h"

#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoShapeHints.h>
#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

class SeenSceneTest : public testing::Test {
protected:
    NodePointer<SoSeparator> scene{SceneNodes::createSeparator("scene")};
    NodePointer<SoDirectionalLight> headlight{new SoDirectionalLight};
    NodePointer<SoPerspectiveCamera> camera{new SoPerspectiveCamera};
};

} // namespace

TEST_F(SeenSceneTest, BothSidesAreLitByALightThatStandsBeforeTheCamera) {
    const auto seen = SeenScene::around(scene.get(), headlight.get(), camera.get());
    EXPECT_EQ(SceneReader::childNames(*seen),
              (Names{"ShapeHints", "DirectionalLight", "PerspectiveCamera", "scene"}));
    EXPECT_EQ(seen->getChild(1), headlight.get());
    EXPECT_EQ(seen->getChild(2), camera.get());
    EXPECT_EQ(seen->getChild(3), scene.get());
    // The library lights both sides of a shape that is ordered and not solid.
    const auto& hints = *SceneReader::child<SoShapeHints>(*seen, 0);
    EXPECT_EQ(hints.vertexOrdering.getValue(), SoShapeHints::COUNTERCLOCKWISE);
    EXPECT_EQ(hints.shapeType.getValue(), SoShapeHints::UNKNOWN_SHAPE_TYPE);
}

TEST_F(SeenSceneTest, WithoutAHeadlightNoLightIsAdded) {
    const auto seen = SeenScene::around(scene.get(), nullptr, camera.get());
    EXPECT_EQ(SceneReader::childNames(*seen), (Names{"ShapeHints", "PerspectiveCamera", "scene"}));
}

TEST_F(SeenSceneTest, ViewersGraphGetsWhatItLacksAndKeepsTheRestInOrder) {
    const NodePointer<SoSeparator> around(new SoSeparator);
    around->addChild(headlight.get());
    around->addChild(camera.get());
    around->addChild(scene.get());
    SeenScene::lightBothSides(*around);
    EXPECT_EQ(SceneReader::childNames(*around), SceneReader::childNames(*SeenScene::around(
                                                    scene.get(), headlight.get(), camera.get())));
}
