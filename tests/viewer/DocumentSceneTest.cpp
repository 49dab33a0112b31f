#include "viewer/DocumentScene.h"

#include "tests/support/SceneReader.h"

#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoEnvironment.h>
#include <Inventor/nodes/SoShaderProgram.h>
#include <Inventor/nodes/SoSwitch.h>
#include <gtest/gtest.h>

namespace {

using SceneReader::child;

/** What a scene looks like: the shading in force and the style of what is filled or lined. */
std::pair<int, int> look(const DocumentScene& scene) {
    return {scene.getShadingSwitch()->whichChild.getValue(),
            scene.getDrawStyle()->style.getValue()};
}

} // namespace

TEST(DocumentScene, HasItsUpperStructureInOrder) {
    const DocumentScene scene;
    const SoSeparator& root = *scene.getRoot();
    ASSERT_EQ(root.getNumChildren(), 4);
    auto* environment = child<SoEnvironment>(root, 0);
    ASSERT_NE(environment, nullptr);
    EXPECT_EQ(environment->ambientIntensity.getValue(), 0.2F);
    EXPECT_EQ(environment->ambientColor.getValue(), SbColor(1, 1, 1));
    EXPECT_EQ(root.getChild(1), scene.getSolidSeparator());
    EXPECT_EQ(root.getChild(2), scene.getPhongSeparator());
    EXPECT_EQ(root.getChild(3), scene.getDrawStyleSeparator());

    EXPECT_EQ(scene.getSolidSeparator()->getChild(0), scene.getSolidProgram());
    EXPECT_EQ(scene.getPhongSeparator()->getChild(0), scene.getPhongProgram());
    EXPECT_EQ(scene.getDrawStyleSeparator()->getChild(0), scene.getDrawStyle());
    EXPECT_EQ(scene.getDrawStyleSeparator()->getChild(1), scene.getShadingSwitch());
    EXPECT_EQ(scene.getDrawStyle()->lineWidth.getValue(), 0.125F);
    EXPECT_EQ(scene.getDrawStyle()->style.getValue(), SoDrawStyle::FILLED);
    EXPECT_TRUE(scene.getDrawStyle()->pointSize.isDefault());
    EXPECT_TRUE(scene.getDrawStyle()->linePattern.isDefault());
    const SoSwitch& shading = *scene.getShadingSwitch();
    ASSERT_EQ(shading.getNumChildren(), 2);
    EXPECT_EQ(shading.whichChild.getValue(), 0);
    EXPECT_EQ(shading.getChild(0), scene.getPhongProgram());
    EXPECT_EQ(shading.getChild(1), scene.getSolidProgram());
}

TEST(DocumentScene, GoesThroughItsLooksByItself) {
    DocumentScene scene;
    const DocumentScene other;
    const std::pair<int, int> first = look(scene);
    scene.toggleDrawStyle();
    EXPECT_EQ(look(scene), std::make_pair(1, int{SoDrawStyle::FILLED}));
    scene.toggleDrawStyle();
    EXPECT_EQ(look(scene), std::make_pair(1, int{SoDrawStyle::LINES}));
    EXPECT_EQ(look(other), first);
    scene.toggleDrawStyle();
    EXPECT_EQ(look(scene), first);
}

TEST(DocumentScene, TakesALookAndGoesOnFromIt) {
    DocumentScene scene;
    scene.setLook(DocumentScene::Look::lines);
    EXPECT_EQ(look(scene), std::make_pair(1, int{SoDrawStyle::LINES}));
    scene.setLook(DocumentScene::Look::plain);
    EXPECT_EQ(look(scene), std::make_pair(1, int{SoDrawStyle::FILLED}));
    scene.toggleDrawStyle();
    EXPECT_EQ(look(scene), std::make_pair(1, int{SoDrawStyle::LINES}));
    scene.setLook(DocumentScene::Look::lit);
    EXPECT_EQ(look(scene), std::make_pair(0, int{SoDrawStyle::FILLED}));
}

// What a viewer lets go of in its own OpenGL context is never another one's.
TEST(DocumentScene, SharesNoProgramWithAnother) {
    const DocumentScene scene;
    const DocumentScene other;
    EXPECT_NE(scene.getPhongProgram(), other.getPhongProgram());
    EXPECT_NE(scene.getSolidProgram(), other.getSolidProgram());
}

TEST(DocumentScene, KeepsItsNodesAsLongAsItLives) {
    NodePointer<SoSeparator> root;
    {
        const DocumentScene scene;
        root = scene.getRoot();
        EXPECT_EQ(root->getRefCount(), 2);
    }
    EXPECT_EQ(root->getRefCount(), 1);
    EXPECT_EQ(root->getNumChildren(), 4);
}
