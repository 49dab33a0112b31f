#include "helix/Helix.h"
#include "helix/HelixNames.h"
#include "scene/SceneNodes.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoLineSet.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoMaterialBinding.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>
#include <gtest/gtest.h>

namespace {

using Part = NodePointer<SoSeparator>;

template <typename Node>
Node* child(const Part& part, int position) {
    return dynamic_cast<Node*>(part->getChild(position));
}

void expectTable(const SoMFVec3f& field, const Helix::Table& table) {
    ASSERT_EQ(field.getNum(), static_cast<int>(table.size()));
    for (int i = 0; i < field.getNum(); ++i) {
        const auto& [x, y, z] = table[static_cast<std::size_t>(i)];
        ASSERT_EQ(field[i], SbVec3f(x, y, z));
    }
}

void expectColors(const SoMaterial& material, const Helix::Table& table) {
    for (const SoMFColor* field :
         {&material.ambientColor, &material.diffuseColor, &material.specularColor}) {
        ASSERT_EQ(field->getNum(), static_cast<int>(table.size()));
        for (int i = 0; i < field->getNum(); ++i) {
            const auto& [red, green, blue] = table[static_cast<std::size_t>(i)];
            ASSERT_EQ((*field)[i], SbColor(red, green, blue));
        }
    }
}

} // namespace

TEST(HelixNodes, PartsBearTheirNames) {
    const Helix helix;
    EXPECT_EQ(Part(helix.DrawLine())->getName(), SbName("Helix_Line"));
    EXPECT_EQ(Part(helix.DrawTube())->getName(), SbName("Helix_Tube"));
    EXPECT_EQ(Part(helix.DrawRibbon())->getName(), SbName("Helix_Ribbon"));
    EXPECT_STREQ(HelixNames::line, "Helix_Line");
    EXPECT_STREQ(HelixNames::tube, "Helix_Tube");
    EXPECT_STREQ(HelixNames::ribbon, "Helix_Ribbon");
    EXPECT_STREQ(HelixNames::framePrefix, "Helix_");
}

TEST(HelixNodes, LineIsOnePolylineColouredByVertex) {
    const Helix helix;
    const Part line(helix.DrawLine());
    ASSERT_EQ(line->getNumChildren(), 4);
    expectColors(*child<SoMaterial>(line, 0), helix.getLineColors());
    EXPECT_EQ(child<SoMaterialBinding>(line, 1)->value.getValue(), SoMaterialBinding::PER_VERTEX);
    expectTable(child<SoCoordinate3>(line, 2)->point, helix.getLineVertices());
    const auto& numVertices = child<SoLineSet>(line, 3)->numVertices;
    ASSERT_EQ(numVertices.getNum(), 1);
    EXPECT_EQ(numVertices[0], 250);
}

TEST(HelixNodes, TubeWithoutAColourIsColouredByVertex) {
    const Helix helix;
    const Part tube(helix.DrawTube());
    ASSERT_EQ(tube->getNumChildren(), 4);
    expectColors(*child<SoMaterial>(tube, 0), helix.getTubeColors());
    EXPECT_EQ(child<SoMaterialBinding>(tube, 1)->value.getValue(), SoMaterialBinding::PER_VERTEX);
    expectTable(child<SoCoordinate3>(tube, 2)->point, helix.getTubeVertices());
    EXPECT_EQ(child<SoCoordinate3>(tube, 2)->point.getNum(), 4000);
    EXPECT_EQ(child<SoQuadMesh>(tube, 3)->verticesPerRow.getValue(), 16);
    EXPECT_EQ(child<SoQuadMesh>(tube, 3)->verticesPerColumn.getValue(), 250);
}

TEST(HelixNodes, RibbonWithoutAColourIsColouredByVertex) {
    const Helix helix;
    const Part ribbon(helix.DrawRibbon());
    ASSERT_EQ(ribbon->getNumChildren(), 4);
    expectColors(*child<SoMaterial>(ribbon, 0), helix.getRibbonColors());
    EXPECT_EQ(child<SoMaterialBinding>(ribbon, 1)->value.getValue(), SoMaterialBinding::PER_VERTEX);
    expectTable(child<SoCoordinate3>(ribbon, 2)->point, helix.getRibbonVertices());
    EXPECT_EQ(child<SoCoordinate3>(ribbon, 2)->point.getNum(), 500);
    EXPECT_EQ(child<SoQuadMesh>(ribbon, 3)->verticesPerRow.getValue(), 2);
    EXPECT_EQ(child<SoQuadMesh>(ribbon, 3)->verticesPerColumn.getValue(), 250);
}

TEST(HelixNodes, ColouredHelixHasAUniformTubeAndTheComplementaryRibbon) {
    const Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    const Part tube(helix.DrawTube());
    const Part ribbon(helix.DrawRibbon());
    ASSERT_EQ(tube->getNumChildren(), 3);
    ASSERT_EQ(ribbon->getNumChildren(), 3);
    expectColors(*child<SoMaterial>(tube, 0), {{1, 0, 0}});
    expectColors(*child<SoMaterial>(ribbon, 0), {{0, 1, 1}});
    EXPECT_NE(child<SoCoordinate3>(tube, 1), nullptr);
    EXPECT_NE(child<SoQuadMesh>(tube, 2), nullptr);
    EXPECT_NE(child<SoCoordinate3>(ribbon, 1), nullptr);
    EXPECT_NE(child<SoQuadMesh>(ribbon, 2), nullptr);
}

TEST(HelixNodes, RibbonsColourIsTheComplementChannelByChannel) {
    const Helix helix(1, 0.5F, 0.25F, 0.9F, 0.4F, 0.2F);
    expectColors(*child<SoMaterial>(Part(helix.DrawTube()), 0), {{0.9F, 0.4F, 0.2F}});
    expectColors(*child<SoMaterial>(Part(helix.DrawRibbon()), 0), {{1 - 0.9F, 1 - 0.4F, 1 - 0.2F}});
}

TEST(HelixNodes, LineOfAColouredHelixIsColouredByVertexAllTheSame) {
    const Helix helix(1, 0.5F, 0.25F, 0.9F, 0.4F, 0.2F);
    const Part line(helix.DrawLine());
    ASSERT_EQ(line->getNumChildren(), 4);
    expectColors(*child<SoMaterial>(line, 0), helix.getLineColors());
    EXPECT_EQ(child<SoMaterialBinding>(line, 1)->value.getValue(), SoMaterialBinding::PER_VERTEX);
}

TEST(HelixNodes, AnyColourButBlackIsUniform) {
    for (const auto& [red, green, blue] :
         {FloatTriple{1e-6F, 0, 0}, {0, 1e-6F, 0}, {0, 0, 1e-6F}}) {
        const Helix helix(1, 0.5F, 0.25F, red, green, blue);
        EXPECT_EQ(Part(helix.DrawTube())->getNumChildren(), 3);
    }
    const Helix black(1, 0.5F, 0.25F, 0, 0, 0);
    EXPECT_EQ(Part(black.DrawTube())->getNumChildren(), 4);
    EXPECT_EQ(Part(black.DrawRibbon())->getNumChildren(), 4);
}

TEST(HelixNodes, LaterChangesOfTheTablesDoNotReachTheNodes) {
    Helix helix;
    const Part tube(helix.DrawTube());
    const SbVec3f before = child<SoCoordinate3>(tube, 2)->point[7];
    helix.setTubeR(1);
    helix.generatePoints(true, true, true);
    EXPECT_EQ(child<SoCoordinate3>(tube, 2)->point[7], before);
}

TEST(HelixNodes, EveryCallBuildsNewNodes) {
    const Helix helix;
    EXPECT_NE(Part(helix.DrawTube()).get(), Part(helix.DrawTube()).get());
}

TEST(HelixNodes, HelixWithoutTurnsIsDrawnAsNothingAndWithoutComplaint) {
    for (const bool colored : {false, true}) {
        Helix helix(1, 0.5F, 0.25F, colored ? 1.0F : 0.0F, 0, 0);
        helix.setNTurns(0);
        helix.init_tables(true, true, true);
        helix.generatePoints(true, true, true);
        testing::internal::CaptureStderr();
        for (SoSeparator* node : {helix.DrawTube(), helix.DrawRibbon(), helix.DrawLine()}) {
            const Part part(node);
            SoGetBoundingBoxAction box(SbViewportRegion(100, 100));
            box.apply(part.get());
            EXPECT_TRUE(box.getBoundingBox().isEmpty());
            SoRayPickAction pick(SbViewportRegion(100, 100));
            pick.setRay(SbVec3f(0, 0, 10), SbVec3f(0, 0, -1));
            pick.apply(part.get());
            EXPECT_EQ(pick.getPickedPoint(), nullptr);
        }
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    }
}

TEST(HelixNodes, RingOfASingleVertexHasNoMesh) {
    Helix helix;
    helix.setPrecisionTube(1);
    helix.init_tables(false, true, false);
    const Part tube(helix.DrawTube());
    EXPECT_EQ(tube->getNumChildren(), 3);
    EXPECT_EQ(child<SoCoordinate3>(tube, 2)->point.getNum(), 250);
}

TEST(HelixNodes, LineOfASingleVertexHasNeitherTubeNorRibbonMesh) {
    Helix helix;
    helix.setPrecisionLine(1);
    helix.setNTurns(1);
    helix.init_tables(true, true, true);
    helix.generatePoints(true, true, true);
    const Part tube(helix.DrawTube());
    const Part ribbon(helix.DrawRibbon());
    ASSERT_EQ(tube->getNumChildren(), 3);
    ASSERT_EQ(ribbon->getNumChildren(), 3);
    EXPECT_EQ(child<SoCoordinate3>(tube, 2)->point.getNum(), 16);
    EXPECT_EQ(child<SoCoordinate3>(ribbon, 2)->point.getNum(), 2);
}
