#include "hyperboloid/HyperboloidMesh.h"

#include "hyperboloid/Hyperboloid.h"
#include "scene/SceneNodes.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/details/SoFaceDetail.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTransform.h>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <random>

namespace {

/** All that a pick tells of its nearest point. */
struct Picked {
    SbVec3f point;
    SbVec3f normal;
    int materialIndex;
    int face;
    int part;
    std::vector<int> corners;

    bool operator==(const Picked& other) const {
        return point == other.point && normal == other.normal &&
               materialIndex == other.materialIndex && face == other.face && part == other.part &&
               corners == other.corners;
    }
};

std::optional<Picked> pick(SoNode& scene, const SbVec3f& from, const SbVec3f& direction) {
    SoRayPickAction action(SbViewportRegion(100, 100));
    action.setRay(from, direction, 0);
    action.apply(&scene);
    const SoPickedPoint* point = action.getPickedPoint();
    if (point == nullptr) {
        return std::nullopt;
    }
    Picked picked{
        point->getObjectPoint(), point->getObjectNormal(), point->getMaterialIndex(), 0, 0, {}};
    if (const auto* face = dynamic_cast<const SoFaceDetail*>(point->getDetail())) {
        picked.face = face->getFaceIndex();
        picked.part = face->getPartIndex();
        for (int i = 0; i < face->getNumPoints(); ++i) {
            picked.corners.push_back(face->getPoint(i)->getCoordinateIndex());
            picked.corners.push_back(face->getPoint(i)->getMaterialIndex());
            picked.corners.push_back(face->getPoint(i)->getNormalIndex());
        }
    }
    return picked;
}

/** The same surface with the scene library's own mesh. */
NodePointer<SoSeparator> withPlainMesh(const SoSeparator& surface, int rows, int columns) {
    NodePointer<SoSeparator> plain(new SoSeparator);
    for (int i = 0; i < 3; ++i) {
        plain->addChild(surface.getChild(i));
    }
    plain->addChild(SceneNodes::createQuadMesh(rows, columns));
    return plain;
}

class MeshOf {
public:
    MeshOf(int space, int columns, int rows, double K2 = 1.5)
        : model(1, 1.5F, 1, 0.5F, 0.5F, 1, 0, 0, space) {
        model.set_parameters(1, K2, 1, 0.5, 0.5, 1, 0, 0, columns, rows, 0.3, 7, 7, 0.02, 0.03);
        model.init_tables();
        model.generateHyperboloidPoints(true, true);
        quick.reset(model.DrawHyperboloid());
        plain = withPlainMesh(*quick, rows, columns);
    }

    SbVec3f vertex(int k) const {
        return {model.getVertex(k, 0), model.getVertex(k, 1), model.getVertex(k, 2)};
    }

    /** Compares both meshes for random rays; returns how many of them hit the surface. */
    int compare(int rays, unsigned seed) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<float> place(-20, 20);
        std::uniform_int_distribution<int> index(0, static_cast<int>(model.getNumVertices()) - 1);
        int hits = 0;
        for (int i = 0; i < rays; ++i) {
            const SbVec3f from(place(random), place(random), place(random));
            const SbVec3f target = vertex(index(random)) + 0.01F * from;
            const std::optional<Picked> expected = pick(*plain, from, target - from);
            EXPECT_EQ(pick(*quick, from, target - from), expected) << "ray " << i;
            hits += expected ? 1 : 0;
        }
        return hits;
    }

    Hyperboloid model;
    NodePointer<SoSeparator> quick;
    NodePointer<SoSeparator> plain;
};

} // namespace

TEST(HyperboloidMesh, IsAQuadMeshToEveryoneWhoLooks) {
    const MeshOf mesh(Hyperboloid::USPACE, 20, 30);
    const SoNode* node = mesh.quick->getChild(3);
    EXPECT_EQ(node->getTypeId(), SoQuadMesh::getClassTypeId());
    EXPECT_EQ(node->getName(), SbName("HyperboloidMesh"));
    SoSearchAction search;
    search.setType(SoQuadMesh::getClassTypeId(), FALSE);
    search.apply(mesh.quick.get());
    ASSERT_NE(search.getPath(), nullptr);
    EXPECT_EQ(search.getPath()->getTail(), node);
}

class HyperboloidMeshIn : public testing::TestWithParam<int> {};

TEST_P(HyperboloidMeshIn, PicksExactlyWhatTheLibrarysMeshPicks) {
    EXPECT_GT(MeshOf(GetParam(), 64, 64).compare(3000, 1), 1000);
}

TEST_P(HyperboloidMeshIn, PicksTheSameOnGridsOfEveryShape) {
    int hits = 0;
    for (const auto& [columns, rows] : std::vector<std::pair<int, int>>{
             {5, 5}, {17, 17}, {16, 18}, {33, 5}, {5, 500}, {100, 7}}) {
        hits += MeshOf(GetParam(), columns, rows).compare(200, 7);
    }
    EXPECT_GT(hits, 300);
}

TEST_P(HyperboloidMeshIn, PicksTheSameOnTheFinestGrid) {
    EXPECT_GT(MeshOf(GetParam(), 500, 500).compare(150, 3), 50);
}

INSTANTIATE_TEST_SUITE_P(EverySpace, HyperboloidMeshIn, testing::Values(0, 1, 2));

TEST(HyperboloidMesh, PicksTheSameUnderATransformation) {
    const MeshOf mesh(Hyperboloid::XSPACE, 40, 40);
    auto* transform = new SoTransform;
    transform->scaleFactor.setValue(2, 0.5F, 3);
    transform->rotation.setValue(SbVec3f(1, 2, 3), 0.7F);
    transform->translation.setValue(5, -3, 1);
    const NodePointer<SoSeparator> quick(new SoSeparator);
    const NodePointer<SoSeparator> plain(new SoSeparator);
    for (SoSeparator* scene : {quick.get(), plain.get()}) {
        scene->addChild(transform);
    }
    quick->addChild(mesh.quick.get());
    plain->addChild(mesh.plain.get());
    int hits = 0;
    for (int i = 0; i < 400; ++i) {
        const int row = i / 20;
        const SbVec3f from(static_cast<float>(i % 20) - 10, static_cast<float>(row) - 10, 60);
        const std::optional<Picked> expected = pick(*plain, from, SbVec3f(0.01F, 0.02F, -1));
        EXPECT_EQ(pick(*quick, from, SbVec3f(0.01F, 0.02F, -1)), expected);
        hits += expected ? 1 : 0;
    }
    EXPECT_GT(hits, 50);
}

TEST(HyperboloidMesh, VerticesThatAreNotFiniteAreNeverHitAndHideNoOther) {
    const MeshOf spoilt(Hyperboloid::USPACE, 64, 64);
    const MeshOf whole(Hyperboloid::USPACE, 64, 64);
    auto* coordinates = dynamic_cast<SoCoordinate3*>(spoilt.quick->getChild(2));
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    constexpr int distance = 701;
    for (int k = 0; k < 64 * 64; k += distance) {
        coordinates->point.set1Value(k, SbVec3f(notANumber, 0, notANumber));
    }
    int compared = 0;
    for (int k = 1; k < 64 * 64; k += 3) {
        const SbVec3f from(11, -7, 13);
        const SbVec3f direction = whole.vertex(k) * 0.99F - from;
        const std::optional<Picked> expected = pick(*whole.plain, from, direction);
        const std::optional<Picked> found = pick(*spoilt.quick, from, direction);
        if (found) {
            EXPECT_NE(found->materialIndex % distance, 0);
        }
        const bool hitsSpoilt =
            expected && std::any_of(expected->corners.begin(), expected->corners.end(),
                                    [](int corner) { return corner % distance == 0; });
        if (expected && !hitsSpoilt) {
            ++compared;
            EXPECT_EQ(found->point, expected->point);
            EXPECT_EQ(found->materialIndex, expected->materialIndex);
        }
    }
    EXPECT_GT(compared, 500);
}

TEST(HyperboloidMesh, APatchWithoutAnyFiniteVertexIsNeverHitAndHidesNoOther) {
    const MeshOf spoilt(Hyperboloid::USPACE, 64, 64);
    const MeshOf whole(Hyperboloid::USPACE, 64, 64);
    auto* coordinates = dynamic_cast<SoCoordinate3*>(spoilt.quick->getChild(2));
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    // Larger than a patch and two more: one patch at least has no finite vertex.
    const auto isSpoilt = [](int vertex) {
        const int column = vertex / 64;
        const int row = vertex % 64;
        return column >= 14 && column < 50 && row >= 14 && row < 50;
    };
    for (int k = 0; k < 64 * 64; ++k) {
        if (isSpoilt(k)) {
            coordinates->point.set1Value(k, SbVec3f(notANumber, notANumber, notANumber));
        }
    }
    int throughTheHole = 0;
    int compared = 0;
    for (int k = 1; k < 64 * 64; k += 7) {
        const SbVec3f from(11, -7, 13);
        const SbVec3f direction = whole.vertex(k) * 0.99F - from;
        const std::optional<Picked> expected = pick(*whole.plain, from, direction);
        const std::optional<Picked> found = pick(*spoilt.quick, from, direction);
        if (found) {
            EXPECT_FALSE(isSpoilt(found->materialIndex));
            EXPECT_TRUE(std::isfinite(found->point[0] + found->point[1] + found->point[2]));
        }
        if (expected &&
            std::none_of(expected->corners.begin(), expected->corners.end(), isSpoilt)) {
            ++compared;
            ASSERT_TRUE(found.has_value());
            EXPECT_EQ(found->point, expected->point);
            EXPECT_EQ(found->materialIndex, expected->materialIndex);
        } else if (expected) {
            ++throughTheHole;
        }
    }
    EXPECT_GT(compared, 100);
    EXPECT_GT(throughTheHole, 100);
}

TEST(HyperboloidMesh, SurfaceWithoutAnyFiniteVertexIsNeverHit) {
    const MeshOf mesh(Hyperboloid::USPACE, 20, 20, 1.0);
    EXPECT_TRUE(std::isnan(mesh.model.getVertex(0, 0)));
    for (int i = 0; i < 100; ++i) {
        EXPECT_FALSE(
            pick(*mesh.quick, SbVec3f(static_cast<float>(i) / 10, 1, 20), SbVec3f(0, 0, -1))
                .has_value());
    }
}

TEST(HyperboloidMesh, FollowsCoordinatesThatAreReplaced) {
    const MeshOf first(Hyperboloid::USPACE, 30, 30);
    const MeshOf second(Hyperboloid::MSPACE, 30, 30);
    const SbVec3f from(0.3F, 0.2F, 40);
    const SbVec3f toSecond = second.vertex(200) - from;
    ASSERT_TRUE(pick(*first.quick, from, first.vertex(200) - from).has_value());
    const std::optional<Picked> expected = pick(*second.plain, from, toSecond);
    first.quick->replaceChild(2, second.quick->getChild(2));
    EXPECT_EQ(pick(*first.quick, from, toSecond)->point, expected->point);
}

TEST(HyperboloidMesh, IsNotHitWhereNothingIsToBePicked) {
    const MeshOf mesh(Hyperboloid::USPACE, 30, 30);
    const SbVec3f from(0.3F, 0.2F, 40);
    ASSERT_TRUE(pick(*mesh.quick, from, mesh.vertex(200) - from).has_value());
    auto* style = new SoPickStyle;
    style->style = SoPickStyle::UNPICKABLE;
    mesh.quick->insertChild(style, 0);
    EXPECT_FALSE(pick(*mesh.quick, from, mesh.vertex(200) - from).has_value());
}

TEST(HyperboloidMesh, IsHitFarAwayFromWhereItWasOnceItIsMoved) {
    const MeshOf mesh(Hyperboloid::USPACE, 30, 30);
    const SbVec3f from(0.3F, 0.2F, 40);
    const SbVec3f direction = mesh.vertex(200) - from;
    const std::optional<Picked> before = pick(*mesh.quick, from, direction);
    ASSERT_TRUE(before.has_value());
    const SbVec3f move(300, -200, 100);
    const auto* old = dynamic_cast<SoCoordinate3*>(mesh.quick->getChild(2));
    auto* moved = new SoCoordinate3;
    for (int k = 0; k < old->point.getNum(); ++k) {
        moved->point.set1Value(k, old->point[k] + move);
    }
    mesh.quick->replaceChild(2, moved);
    const std::optional<Picked> after = pick(*mesh.quick, from + move, direction);
    ASSERT_TRUE(after.has_value());
    EXPECT_EQ(after->materialIndex, before->materialIndex);
    EXPECT_FALSE(pick(*mesh.quick, from, direction).has_value());
}
