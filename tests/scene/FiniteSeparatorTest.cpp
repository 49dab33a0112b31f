#include "scene/FiniteSeparator.h"
#include "scene/SceneNodes.h"

#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSphere.h>
#include <Inventor/nodes/SoTransform.h>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();
const SbViewportRegion viewport(100, 100);

/** A square of two by two around the z axis at a height; one corner's height may be another. */
SoSeparator* square(float height, float cornerHeight) {
    SoSeparator* separator = SceneNodes::createSeparator("Square");
    separator->addChild(SceneNodes::createCoordinates(
        {{-1, -1, height}, {1, -1, height}, {-1, 1, height}, {1, 1, cornerHeight}}));
    separator->addChild(SceneNodes::createQuadMesh(2, 2));
    return separator;
}

SoSeparator* sphereAt(float x) {
    auto* place = new SoTransform;
    place->translation.setValue(x, 0, 0);
    SoSeparator* separator = SceneNodes::createSeparator("Sphere");
    separator->addChild(place);
    separator->addChild(new SoSphere);
    return separator;
}

SbBox3f boundsOf(SoNode& node) {
    SoGetBoundingBoxAction bounds(viewport);
    bounds.apply(&node);
    return bounds.getBoundingBox();
}

/** The nearest point that a ray down the z axis hits, a little beside the square's diagonal. */
const SoPickedPoint* pickFromAbove(SoRayPickAction& pick, SoNode& node) {
    pick.setRay(SbVec3f(0.2F, 0.1F, 10), SbVec3f(0, 0, -1));
    pick.apply(&node);
    return pick.getPickedPoint();
}

} // namespace

TEST(FiniteSeparatorTest, IsASeparatorToTheSceneLibrary) {
    const NodePointer<SoSeparator> separator(SceneNodes::createSeparator("Any"));
    EXPECT_NE(dynamic_cast<FiniteSeparator*>(separator.get()), nullptr);
    EXPECT_EQ(separator->getTypeId(), SoSeparator::getClassTypeId());
}

TEST(FiniteSeparatorTest, FiniteContentsAreBoundedAndHit) {
    const NodePointer<SoSeparator> scene(new SoSeparator);
    scene->addChild(square(0, 0));
    scene->addChild(square(-3, -3));
    EXPECT_EQ(boundsOf(*scene).getMin(), SbVec3f(-1, -1, -3));
    EXPECT_EQ(boundsOf(*scene).getMax(), SbVec3f(1, 1, 0));
    SoRayPickAction pick(viewport);
    const SoPickedPoint* hit = pickFromAbove(pick, *scene);
    ASSERT_NE(hit, nullptr);
    EXPECT_FLOAT_EQ(hit->getPoint()[2], 0);
}

TEST(FiniteSeparatorTest, WhatMovesWithinASceneNeverMovesItsBounds) {
    const NodePointer<SoSeparator> scene(new SoSeparator);
    SoSeparator* corners = SceneNodes::createSeparator("Corners");
    corners->addChild(SceneNodes::createCoordinates({{-31.713F, -30.137F, -29.871F},
                                                     {30.319F, -30.137F, -29.871F},
                                                     {-31.713F, 31.617F, 32.003F},
                                                     {30.319F, 31.617F, 32.003F}}));
    corners->addChild(SceneNodes::createQuadMesh(2, 2));
    scene->addChild(corners);
    for (int i = 0; i < 100; ++i) {
        SoSeparator* sphere = sphereAt(static_cast<float>(29 * std::sin(0.7 * i)));
        scene->addChild(sphere);
        EXPECT_EQ(boundsOf(*scene).getMin(), SbVec3f(-31.713F, -30.137F, -29.871F));
        EXPECT_EQ(boundsOf(*scene).getMax(), SbVec3f(30.319F, 31.617F, 32.003F));
        scene->removeChild(sphere);
    }
}

class FiniteSeparatorWith : public testing::TestWithParam<float> {};

TEST_P(FiniteSeparatorWith, PointsThatAreNowhereDoNotSpoilTheirNeighboursBounds) {
    for (const bool first : {true, false}) {
        const NodePointer<SoSeparator> scene(new SoSeparator);
        scene->addChild(square(0, 0));
        scene->insertChild(square(5, GetParam()), first ? 0 : 1);
        scene->insertChild(sphereAt(GetParam()), first ? 0 : 2);
        EXPECT_EQ(boundsOf(*scene).getMin(), SbVec3f(-1, -1, 0));
        EXPECT_EQ(boundsOf(*scene).getMax(), SbVec3f(1, 1, 0));
        // The second time the boxes come from the library's caches.
        EXPECT_EQ(boundsOf(*scene).getMax(), SbVec3f(1, 1, 0));
    }
}

TEST_P(FiniteSeparatorWith, PointsThatAreNowhereDoNotMoveTheCentre) {
    const NodePointer<SoSeparator> scene(new SoSeparator);
    scene->addChild(square(0, 0));
    SoGetBoundingBoxAction alone(viewport);
    alone.apply(scene.get());
    scene->addChild(square(5, GetParam()));
    SoGetBoundingBoxAction together(viewport);
    together.apply(scene.get());
    EXPECT_EQ(together.getCenter(), alone.getCenter());
}

TEST_P(FiniteSeparatorWith, PointsThatAreNowhereHideNothingFromARay) {
    const NodePointer<SoSeparator> scene(new SoSeparator);
    scene->addChild(square(5, GetParam()));
    scene->addChild(sphereAt(GetParam()));
    SoRayPickAction pick(viewport);
    EXPECT_EQ(pickFromAbove(pick, *scene), nullptr);
    scene->addChild(square(0, 0));
    const SoPickedPoint* hit = pickFromAbove(pick, *scene);
    ASSERT_NE(hit, nullptr);
    EXPECT_FLOAT_EQ(hit->getPoint()[2], 0);
}

TEST_P(FiniteSeparatorWith, OneBadPartLeavesTheOtherPartsOfItsGroup) {
    const NodePointer<SoSeparator> group(SceneNodes::createSeparator("Group"));
    group->addChild(square(5, GetParam()));
    group->addChild(square(2, 2));
    EXPECT_EQ(boundsOf(*group).getMax(), SbVec3f(1, 1, 2));
    SoRayPickAction pick(viewport);
    const SoPickedPoint* hit = pickFromAbove(pick, *group);
    ASSERT_NE(hit, nullptr);
    EXPECT_FLOAT_EQ(hit->getPoint()[2], 2);
}

TEST_P(FiniteSeparatorWith, CameraSeesEverythingElse) {
    const NodePointer<SoSeparator> scene(new SoSeparator);
    auto* camera = new SoPerspectiveCamera;
    scene->addChild(camera);
    scene->addChild(square(0, 0));
    camera->viewAll(scene.get(), viewport);
    const SbVec3f position = camera->position.getValue();
    scene->addChild(square(5, GetParam()));
    camera->viewAll(scene.get(), viewport);
    EXPECT_EQ(camera->position.getValue(), position);
}

INSTANTIATE_TEST_SUITE_P(NotANumberAndInfinity, FiniteSeparatorWith,
                         testing::Values(notANumber, infinite, -infinite));

TEST(FiniteSeparatorTest, PointsThatBecomeFiniteCountAgain) {
    const NodePointer<SoSeparator> scene(new SoSeparator);
    SoSeparator* part = square(5, notANumber);
    scene->addChild(part);
    EXPECT_TRUE(boundsOf(*scene).isEmpty());
    static_cast<SoCoordinate3*>(part->getChild(0))->point.set1Value(3, 1, 1, 5);
    EXPECT_EQ(boundsOf(*scene).getMax(), SbVec3f(1, 1, 5));
    SoRayPickAction pick(viewport);
    EXPECT_NE(pickFromAbove(pick, *scene), nullptr);
}
