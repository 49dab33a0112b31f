#include "viewer/Backdrop.h"

#include "scene/SceneNodes.h"
#include "tests/support/SceneReader.h"

#include <Inventor/nodes/SoFont.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoUnits.h>
#include <gtest/gtest.h>

using SceneReader::child;

TEST(Backdrop, IsAGreetingUnderItsOwnCamera) {
    const NodePointer<SoSeparator> background(Backdrop::create());
    EXPECT_EQ(background->getName(), SbName("Background"));
    ASSERT_EQ(background->getNumChildren(), 7);
    auto* camera = child<SoOrthographicCamera>(*background, 0);
    ASSERT_NE(camera, nullptr);
    EXPECT_EQ(camera->position.getValue(), SbVec3f(0, 0, 1));
    EXPECT_EQ(camera->nearDistance.getValue(), 0.5F);
    EXPECT_EQ(camera->farDistance.getValue(), 1.5F);
    EXPECT_EQ(camera->height.getValue(), 10);
    ASSERT_NE(child<SoUnits>(*background, 1), nullptr);
    EXPECT_EQ(child<SoUnits>(*background, 1)->units.getValue(), SoUnits::POINTS);
    ASSERT_NE(child<SoTransform>(*background, 2), nullptr);
    EXPECT_EQ(child<SoTransform>(*background, 2)->translation.getValue(), SbVec3f(-12000, 8000, 0));
    ASSERT_NE(child<SoUnits>(*background, 3), nullptr);
    EXPECT_EQ(child<SoUnits>(*background, 3)->units.getValue(), SoUnits::METERS);
    ASSERT_NE(child<SoMaterial>(*background, 4), nullptr);
    EXPECT_EQ(child<SoMaterial>(*background, 4)->diffuseColor[0], SbColor(1, 0, 0));
    ASSERT_NE(child<SoFont>(*background, 5), nullptr);
    EXPECT_EQ(child<SoFont>(*background, 5)->name.getValue(), SbName("Times-Roman"));
    EXPECT_EQ(child<SoFont>(*background, 5)->size.getValue(), 0.5F);
    ASSERT_NE(child<SoText3>(*background, 6), nullptr);
    EXPECT_EQ(child<SoText3>(*background, 6)->string[0], SbString("Ciao"));
}
