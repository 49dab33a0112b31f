#include "tests/hyperboloid/ExposedHyperboloid.h"
#include "tests/hyperboloid/SceneReading.h"

#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoMaterialBinding.h>
#include <Inventor/nodes/SoQuadMesh.h>

#include <stdexcept>
#include <utility>

namespace {

void expectSceneShowsTables(const ExposedHyperboloid& hyperboloid, SoSeparator* scene) {
    const auto* coordinates = childAs<SoCoordinate3>(scene, 2);
    ASSERT_NE(coordinates, nullptr);
    EXPECT_EQ(valuesOf(coordinates->point), floatsOf(hyperboloid.vertices));
    EXPECT_EQ(valuesOf(hyperboloid.material->ambientColor), floatsOf(hyperboloid.colors));
    EXPECT_EQ(valuesOf(hyperboloid.material->diffuseColor), floatsOf(hyperboloid.colors));
    EXPECT_EQ(valuesOf(hyperboloid.material->specularColor), floatsOf(hyperboloid.colors));
}

TEST(HyperboloidScene, TheSurfaceHasItsNodesInOrder) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.regenerate(startUp, 6, 9);
    const NodePointer<SoSeparator> scene(hyperboloid.DrawHyperboloid());
    EXPECT_EQ(nameOf(scene.get()), "Hyperboloid");
    EXPECT_EQ(scene->renderCaching.getValue(), SoSeparator::ON);
    ASSERT_EQ(scene->getNumChildren(), 4);
    EXPECT_EQ(scene->getChild(0), hyperboloid.material.get());
    const auto* binding = childAs<SoMaterialBinding>(scene.get(), 1);
    const auto* mesh = childAs<SoQuadMesh>(scene.get(), 3);
    ASSERT_TRUE(binding != nullptr && mesh != nullptr);
    EXPECT_EQ(binding->value.getValue(), SoMaterialBinding::PER_VERTEX);
    EXPECT_EQ(nameOf(mesh), "HyperboloidMesh");
    EXPECT_EQ(mesh->verticesPerRow.getValue(), 9);
    EXPECT_EQ(mesh->verticesPerColumn.getValue(), 6);
    expectSceneShowsTables(hyperboloid, scene.get());
}

TEST(HyperboloidScene, ASmallerGridLeavesNoOldValuesInTheMaterial) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const NodePointer<SoSeparator> large(hyperboloid.DrawHyperboloid());
    EXPECT_EQ(hyperboloid.material->diffuseColor.getNum(), 64 * 64);
    hyperboloid.regenerate(startUp, 3, 4);
    const NodePointer<SoSeparator> small(hyperboloid.DrawHyperboloid());
    EXPECT_EQ(hyperboloid.material->diffuseColor.getNum(), 12);
    expectSceneShowsTables(hyperboloid, small.get());
    hyperboloid.regenerate(startUp, 30, 40);
    const NodePointer<SoSeparator> grown(hyperboloid.DrawHyperboloid());
    expectSceneShowsTables(hyperboloid, grown.get());
}

TEST(HyperboloidScene, EveryDrawingIsNewButWearsTheSameMaterial) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    const NodePointer<SoSeparator> first(hyperboloid.DrawHyperboloid());
    const NodePointer<SoSeparator> second(hyperboloid.DrawHyperboloid());
    EXPECT_NE(first, second);
    EXPECT_EQ(first->getChild(0), second->getChild(0));
    EXPECT_NE(first->getChild(2), second->getChild(2));
}

TEST(HyperboloidScene, DrawingLeavesTheTransparencyAlone) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.material->transparency = 0.5F;
    const NodePointer<SoSeparator> scene(hyperboloid.DrawHyperboloid());
    EXPECT_EQ(hyperboloid.material->transparency.getNum(), 1);
    EXPECT_EQ(hyperboloid.material->transparency[0], 0.5F);
}

TEST(HyperboloidScene, AnotherGridIsNotDrawnUntilTheTablesAreMadeAnew) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const NodePointer<SoSeparator> before(hyperboloid.DrawHyperboloid());
    for (const auto& [columns, rows] : {std::pair{500, 100}, std::pair{32, 128}}) {
        hyperboloid.setGrid(startUp, columns, rows);
        EXPECT_THROW(hyperboloid.DrawHyperboloid(), std::logic_error);
        EXPECT_EQ(hyperboloid.material->diffuseColor.getNum(), 64 * 64);
    }
    hyperboloid.regenerate(startUp, 33, 17);
    const NodePointer<SoSeparator> scene(hyperboloid.DrawHyperboloid());
    const auto* coordinates = childAs<SoCoordinate3>(scene.get(), 2);
    const auto* mesh = childAs<SoQuadMesh>(scene.get(), 3);
    ASSERT_TRUE(coordinates != nullptr && mesh != nullptr);
    EXPECT_EQ(mesh->verticesPerRow.getValue(), 17);
    EXPECT_EQ(mesh->verticesPerColumn.getValue(), 33);
    EXPECT_EQ(coordinates->point.getNum(), 33 * 17);
    EXPECT_EQ(hyperboloid.material->diffuseColor.getNum(), 33 * 17);
}

TEST(HyperboloidScene, AnEmptyGridDrawsNoVertices) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.regenerate(startUp, 0, 9);
    const NodePointer<SoSeparator> scene(hyperboloid.DrawHyperboloid());
    const auto* coordinates = childAs<SoCoordinate3>(scene.get(), 2);
    const auto* mesh = childAs<SoQuadMesh>(scene.get(), 3);
    ASSERT_TRUE(coordinates != nullptr && mesh != nullptr);
    EXPECT_EQ(coordinates->point.getNum(), 0);
    EXPECT_EQ(hyperboloid.material->diffuseColor.getNum(), 0);
    EXPECT_EQ(mesh->verticesPerColumn.getValue(), 0);
}

TEST(HyperboloidScene, APickedPointsMaterialIndexIsItsVertexIndex) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    const NodePointer<SoSeparator> scene(hyperboloid.DrawHyperboloid());
    for (const int vertex : {5 * 64 + 7, 20 * 64 + 33, 41 * 64 + 50}) {
        const SbVec3f target(hyperboloid.getVertex(vertex, 0), hyperboloid.getVertex(vertex, 1),
                             hyperboloid.getVertex(vertex, 2));
        // From the surface's axis, the second coordinate's, outwards to the vertex and a bit
        // beside.
        const SbVec3f axisPoint(0.0F, target[1], 0.0F);
        SoRayPickAction pick(SbViewportRegion(100, 100));
        pick.setRay(axisPoint, target - axisPoint + SbVec3f(0.003F, 0.003F, 0.003F), 0.0F, 1000.0F);
        pick.apply(scene.get());
        const SoPickedPoint* point = pick.getPickedPoint();
        ASSERT_NE(point, nullptr);
        EXPECT_EQ(nameOf(point->getPath()->getTail()), "HyperboloidMesh");
        EXPECT_EQ(point->getMaterialIndex(), vertex);
    }
}

} // namespace
