#include "hyperboloid/HyperboloidNames.h"
#include "tests/support/LinkedFrames.h"
#include "tests/support/ReplacementCounter.h"
#include "tests/support/SceneReader.h"
#include "tests/support/Spheres.h"
#include "tests/support/VertexHelix.h"

#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSphere.h>
#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>
#include <tuple>
#include <utility>

using Names = std::vector<std::string>;

namespace {

SoSeparator& phongBranch(const HyperboloidFrame& frame) {
    return SceneReader::phongBranch(*frame.getSceneRoot());
}

SoSeparator& drawStyleBranch(const HyperboloidFrame& frame) {
    return SceneReader::drawStyleBranch(*frame.getSceneRoot());
}

std::string nameOf(const HelixFrame& helix) {
    return helix.getName().getString();
}

SbVec3f vertex(HyperboloidFrame& frame, int index) {
    return {frame.getVertex(index, 0), frame.getVertex(index, 1), frame.getVertex(index, 2)};
}

SbColor color(HyperboloidFrame& frame, int index) {
    return {frame.getColor(index, 0), frame.getColor(index, 1), frame.getColor(index, 2)};
}

/** Every frame's sphere of the helix stands at the helix's vertex, in the frame's own space. */
void expectSpheresAtVertex(const LinkedFrames& opened, const HelixFrame& helix, int index) {
    EXPECT_EQ(helix.getIndex(), index);
    for (int space = 0; space < 3; ++space) {
        HyperboloidFrame& frame = opened.hyperboloid(space);
        EXPECT_EQ(SceneReader::countNamed(phongBranch(frame), helix.getName()), 1);
        EXPECT_EQ(spherePosition(frame, helix), vertex(frame, index));
    }
}

/** A hyperboloid frame with the start-up parameters, without a main window, initialized. */
class LoneFrame {
public:
    explicit LoneFrame(int space)
        : frame(1, 1.5F, 1, 0.5F, 0.5F, 1, 0, 0, space, true, nullptr) {
        frame.initialize();
    }
    HyperboloidFrame frame;
};

const SbColor grey(0.25F, 0.25F, 0.25F);

/** Grey from the next time on that colours are computed. */
void makeGreyLater(HyperboloidFrame& frame) {
    frame.setSaturation(0, false);
    frame.setLightness(25, false);
}

void makeGrey(HyperboloidFrame& frame) {
    makeGreyLater(frame);
    frame.reDraw(false, true);
}

/** The colour of a vertex in the scene, rather than in the model's table. */
SbColor shownColor(const HyperboloidFrame& frame, int index) {
    const SoSeparator* surface =
        SceneReader::childNamed(drawStyleBranch(frame), HyperboloidNames::surface);
    return SceneReader::child<SoMaterial>(*surface, 0)->diffuseColor[index];
}

} // namespace

TEST(HyperboloidFrameTest, KnowsItsTypeItsSpaceAndItsBrothers) {
    const LinkedFrames opened;
    for (int space = 0; space < 3; ++space) {
        HyperboloidFrame& frame = opened.hyperboloid(space);
        EXPECT_EQ(frame.GetType(), "HyperboloidFrame");
        EXPECT_EQ(frame.WichSpace(), space);
        for (int brother = 0; brother < 3; ++brother) {
            EXPECT_EQ(frame.getBrother(brother), &opened.hyperboloid(brother));
        }
        EXPECT_EQ(frame.getBrother(7), &opened.hyperboloid(Hyperboloid::USPACE));
        EXPECT_EQ(frame.getBrother(-1), &opened.hyperboloid(Hyperboloid::USPACE));
    }
    EXPECT_EQ(HyperboloidFrame::Type(), "HyperboloidFrame");
}

TEST(HyperboloidFrameTest, DirectionsHaveTheirNumbers) {
    EXPECT_EQ(HyperboloidFrame::UP, 0);
    EXPECT_EQ(HyperboloidFrame::DOWN, 1);
    EXPECT_EQ(HyperboloidFrame::RIGHT, 2);
    EXPECT_EQ(HyperboloidFrame::LEFT, 3);
    ::toggleDrawStyle();
}

TEST(HyperboloidFrameTest, SceneHoldsSurfaceDecorationsAndSphereInOrder) {
    const LinkedFrames opened;
    const std::string sphere = nameOf(opened.firstHelix());
    for (int space = 0; space < 3; ++space) {
        const HyperboloidFrame& frame = opened.hyperboloid(space);
        EXPECT_EQ(SceneReader::childNames(phongBranch(frame)),
                  (Names{"ShaderProgram", "U3Axis", "Center", "uHat", "U3ConstAxis", sphere}))
            << space;
        EXPECT_EQ(SceneReader::childNames(drawStyleBranch(frame)),
                  (Names{"DrawStyle", "Switch", "Hyperboloid"}));
    }
}

TEST(HyperboloidFrameTest, RedrawReplacesSurfaceAndDecorationsAndKeepsSpheresAndAxis) {
    const LinkedFrames opened;
    HyperboloidFrame& frame = opened.hyperboloid(Hyperboloid::USPACE);
    frame.DrawAxis(2, 0.1);
    const std::string sphere = nameOf(opened.firstHelix());
    ReplacementCounter surfaces(drawStyleBranch(frame), HyperboloidNames::surface);
    frame.reDraw(false, false);
    Names names = SceneReader::childNames(phongBranch(frame));
    names.erase(names.begin());
    EXPECT_EQ(names, (Names{sphere, "Axis", "U3Axis", "Center", "uHat", "U3ConstAxis"}));
    EXPECT_EQ(SceneReader::countNamed(drawStyleBranch(frame), HyperboloidNames::surface), 1);
    EXPECT_EQ(surfaces.take(), 1);
}

TEST(HyperboloidFrameTest, SpheresKeepTheirPlaceAndColourWhenSurfacesAreRecoloured) {
    constexpr int place = 777;
    const LinkedFrames opened;
    const HelixFrame& helix = opened.firstHelix();
    for (int space = 0; space < 3; ++space) {
        LinkedFrames::tie(opened.firstHelix(), opened.hyperboloid(space));
    }
    opened.hyperboloid(Hyperboloid::USPACE).refresh_hypos(place);
    opened.hyperboloid(Hyperboloid::USPACE).refresh_helix(place);
    for (int space = 0; space < 3; ++space) {
        HyperboloidFrame& frame = opened.hyperboloid(space);
        const SoSeparator* sphere = SceneReader::childNamed(phongBranch(frame), helix.getName());
        const SoMaterial& material = *SceneReader::child<SoMaterial>(*sphere, 0);
        const SbColor before = material.diffuseColor[0];
        EXPECT_EQ(before, color(frame, place));
        frame.setSaturation(10, true);
        frame.setLightness(25, true);
        frame.setTransparency(30, true);
        frame.reDraw(true, true);
        EXPECT_EQ(SceneReader::childNamed(phongBranch(frame), helix.getName()), sphere);
        EXPECT_EQ(material.diffuseColor[0], before);
        EXPECT_NE(color(frame, place), before);
    }
}

TEST(HyperboloidFrameTest, EachNumberOfItsMakingReachesItsPlace) {
    RecordingOwner owner;
    auto frame =
        std::make_unique<HyperboloidFrame>(1.37F, 1.91F, 2.23F, 0.61F, -0.43F, 0.83F, -0.29F, 0.17F,
                                           Hyperboloid::MSPACE, true, &owner);
    Hyperboloid model(1.37F, 1.91F, 2.23F, 0.61F, -0.43F, 0.83F, -0.29F, 0.17F,
                      Hyperboloid::MSPACE);
    EXPECT_EQ(frame->getK(3), 0.61F);
    EXPECT_EQ(frame->getK(4), -0.43F);
    EXPECT_EQ(frame->getU(1), -0.29F);
    EXPECT_EQ(frame->getU(2), 0.17F);
    for (int c = 0; c < 3; ++c) {
        EXPECT_EQ(frame->getVertex(1234, c), model.getVertex(1234, c));
    }
    frame->initialize();
    frame->setTitle("heard of");
    EXPECT_EQ(owner.titleChanges, 1);
    EXPECT_TRUE(frame->close()) << "it closes alone";
}

TEST(HyperboloidFrameTest, XAndMWearTheColoursOfU) {
    const LinkedFrames opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    for (const int space : {Hyperboloid::XSPACE, Hyperboloid::MSPACE}) {
        for (int k = 0; k < static_cast<int>(u.getNumVertices()); ++k) {
            ASSERT_EQ(color(opened.hyperboloid(space), k), color(u, k));
        }
    }
}

TEST(HyperboloidFrameTest, BrothersAreDressedInTheColoursOfUAndOnlyTheyAreDrawnAnew) {
    LoneFrame u(Hyperboloid::USPACE);
    makeGrey(u.frame);
    for (const int space : {Hyperboloid::USPACE, Hyperboloid::XSPACE, Hyperboloid::MSPACE}) {
        LoneFrame lone(space);
        ReplacementCounter surfaces(drawStyleBranch(lone.frame), HyperboloidNames::surface);
        ASSERT_NE(color(lone.frame, 100), grey);
        lone.frame.setBrother(&u.frame, nullptr, nullptr);
        const bool isU = space == Hyperboloid::USPACE;
        EXPECT_EQ(color(lone.frame, 100) == grey, !isU);
        EXPECT_EQ(shownColor(lone.frame, 100) == grey, !isU);
        EXPECT_EQ(surfaces.take(), isU ? 0 : 1);
    }
}

TEST(HyperboloidFrameTest, ChangingColoursCopiesThemIntoXAndMOnly) {
    LoneFrame u(Hyperboloid::USPACE);
    for (const int space : {Hyperboloid::USPACE, Hyperboloid::XSPACE, Hyperboloid::MSPACE}) {
        LoneFrame lone(space);
        lone.frame.setBrother(&u.frame, nullptr, nullptr);
        makeGrey(u.frame);
        lone.frame.changeColors();
        EXPECT_EQ(color(lone.frame, 100) == grey, space != Hyperboloid::USPACE);
        EXPECT_NE(shownColor(lone.frame, 100), grey) << "nothing is drawn yet";
        u.frame.setSaturation(100, true);
        ASSERT_NE(color(u.frame, 100), grey);
    }
}

class ColoursOfAnotherGrid : public testing::TestWithParam<std::pair<int, int>> {};

TEST_P(ColoursOfAnotherGrid, AreCopiedOnceTheGridsAgree) {
    HyperboloidParameters onNewGrid;
    std::tie(onNewGrid.horizontalPrecision, onNewGrid.verticalPrecision) = GetParam();
    for (const int space : {Hyperboloid::XSPACE, Hyperboloid::MSPACE}) {
        LoneFrame u(Hyperboloid::USPACE);
        LoneFrame lone(space);
        lone.frame.setBrother(&u.frame, nullptr, nullptr);
        const SbColor before = color(lone.frame, 38);
        u.frame.setParameters(onNewGrid);
        u.frame.reDraw(true, true);
        const SbColor after = color(u.frame, 38);
        ASSERT_NE(after, before);
        lone.frame.changeColors();
        EXPECT_EQ(color(lone.frame, 38), before) << "vertex 38 is elsewhere on the other grid";
        lone.frame.setParameters(onNewGrid);
        lone.frame.reDraw(true, true);
        EXPECT_EQ(color(lone.frame, 38), after);
        EXPECT_EQ(shownColor(lone.frame, 38), after);
    }
}

// The second has as many vertices as the start-up grid.
INSTANTIATE_TEST_SUITE_P(HyperboloidFrame, ColoursOfAnotherGrid,
                         testing::Values(std::pair(7, 11), std::pair(32, 128)));

TEST(HyperboloidFrameTest, WhatHasGoneUntoldReadsAsNull) {
    LoneFrame x(Hyperboloid::XSPACE);
    {
        HelixFrame helix(0.71F, 0.53F, -0.31F, 0.9F, 0.4F, 0.2F, 7, true, nullptr);
        x.frame.SetPreviousHelix(&helix);
        EXPECT_EQ(x.frame.GetPreviousHelix(), &helix);
        LoneFrame u(Hyperboloid::USPACE);
        x.frame.setBrother(&u.frame, &x.frame, nullptr);
        EXPECT_EQ(x.frame.getBrother(Hyperboloid::USPACE), &u.frame);
    }
    EXPECT_EQ(x.frame.GetPreviousHelix(), nullptr);
    EXPECT_EQ(x.frame.getBrother(Hyperboloid::USPACE), nullptr);
    x.frame.moveSphere(HyperboloidFrame::DOWN);
    x.frame.reDraw(false, false);
}

TEST(HyperboloidFrameTest, RedrawOnAnotherGridNeedsNewTables) {
    LoneFrame lone(Hyperboloid::XSPACE);
    HyperboloidParameters onNewGrid;
    onNewGrid.horizontalPrecision = 7;
    onNewGrid.verticalPrecision = 11;
    lone.frame.setParameters(onNewGrid);
    const Names before = SceneReader::childNames(phongBranch(lone.frame));
    EXPECT_THROW(lone.frame.reDraw(false, true), std::logic_error);
    EXPECT_THROW(lone.frame.reDraw(false, false), std::logic_error);
    EXPECT_EQ(SceneReader::childNames(phongBranch(lone.frame)), before) << "nothing is removed";
    EXPECT_NO_THROW(lone.frame.reDraw(true, false));
}

TEST(HyperboloidFrameTest, RedrawComputesPointsAndColoursEachWhenAsked) {
    LoneFrame lone(Hyperboloid::USPACE);
    HyperboloidFrame& u = lone.frame;
    const SbVec3f before = vertex(u, 100);
    u.set_parameters(1, 2, 1, 0.5, 0.5, 1, 0, 0, 64, 64, 0.3, 7, 7, 0.02, 0.03);
    makeGreyLater(u);
    u.reDraw(false, false);
    EXPECT_EQ(vertex(u, 100), before);
    EXPECT_NE(color(u, 100), grey);
    u.reDraw(false, true);
    EXPECT_EQ(vertex(u, 100), before);
    EXPECT_EQ(color(u, 100), grey);
    // New tables hold no colours until these are asked for.
    u.reDraw(true, false);
    EXPECT_NE(vertex(u, 100), before);
    EXPECT_EQ(color(u, 100), SbColor(0, 0, 0));
    EXPECT_EQ(shownColor(u, 100), SbColor(0, 0, 0));
    u.reDraw(true, true);
    EXPECT_EQ(color(u, 100), grey);
}

TEST(HyperboloidFrameTest, RedrawWithNewTablesTakesOverTheNewGrid) {
    LoneFrame lone(Hyperboloid::USPACE);
    lone.frame.set_parameters(1, 1.5, 1, 0.5, 0.5, 1, 0, 0, 20, 10, 0.3, 7, 7, 0.02, 0.03);
    lone.frame.reDraw(true, false);
    const SoSeparator* surface =
        SceneReader::childNamed(drawStyleBranch(lone.frame), HyperboloidNames::surface);
    EXPECT_EQ(SceneReader::child<SoCoordinate3>(*surface, 2)->point.getNum(), 20 * 10);
}

TEST(HyperboloidFrameTest, AxisAndLinesEachHaveTheirOwnLengthAndRadius) {
    LoneFrame lone(Hyperboloid::USPACE);
    lone.frame.set_parameters(1, 1.5, 1, 0.5, 0.5, 1, 0, 0, 20, 10, 0.3, 6.11, 5.03, 0.04, 0.06);
    lone.frame.reDraw(true, true);
    const auto tubeOf = [&](const char* decoration, int tube) {
        const SoSeparator* parts = SceneReader::childNamed(phongBranch(lone.frame), decoration);
        const auto* part = SceneReader::child<SoSeparator>(*parts, tube);
        const auto& points = SceneReader::child<SoCoordinate3>(*part, 1)->point;
        return std::pair(points[0], points[30]);
    };
    // Every ring begins one radius beside its centre.
    EXPECT_EQ(tubeOf(HyperboloidNames::u3Axis, 0),
              std::pair(SbVec3f(0.06F, 0, -5.03F), SbVec3f(0.06F, 0, 5.03F)));
    // The last of the lines is the first axis.
    EXPECT_EQ(tubeOf(HyperboloidNames::u3ConstAxis, 3),
              std::pair(SbVec3f(-6.11F, 0.04F, 0), SbVec3f(6.11F, 0.04F, 0)));
}

TEST(HyperboloidFrameTest, BecomingBrothersBringsTheColoursOfUIntoTheScene) {
    LoneFrame u(Hyperboloid::USPACE);
    LoneFrame x(Hyperboloid::XSPACE);
    x.frame.setBrother(&u.frame, &x.frame, nullptr);
    EXPECT_EQ(color(x.frame, 100), color(u.frame, 100));
    EXPECT_EQ(shownColor(x.frame, 100), color(u.frame, 100));
}

TEST(HyperboloidFrameTest, SaturationAndLightnessRecolourOnlyWhenAsked) {
    const LinkedFrames opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const SbColor before = color(u, 100);
    u.setSaturation(0, false);
    u.setLightness(25, false);
    EXPECT_EQ(u.getSaturation(), 0);
    EXPECT_EQ(u.getLightness(), 0.25);
    EXPECT_EQ(color(u, 100), before);
    u.setLightness(25, true);
    EXPECT_EQ(color(u, 100), SbColor(0.25F, 0.25F, 0.25F));
    u.setSaturation(80, true);
    EXPECT_EQ(u.getSaturation(), 0.8);
    EXPECT_NE(color(u, 100), SbColor(0.25F, 0.25F, 0.25F));
}

TEST(HyperboloidFrameTest, AppearanceComputesNoPointsAndTransparencyNoColoursEither) {
    LoneFrame lone(Hyperboloid::USPACE);
    HyperboloidFrame& u = lone.frame;
    const SbVec3f before = vertex(u, 100);
    u.set_parameters(1, 2, 1, 0.5, 0.5, 1, 0, 0, 64, 64, 0.3, 7, 7, 0.02, 0.03);
    u.setSaturation(0, true);
    u.setLightness(25, true);
    EXPECT_EQ(color(u, 100), grey);
    u.setSaturation(70, false);
    u.setTransparency(30, true);
    EXPECT_EQ(color(u, 100), grey);
    EXPECT_EQ(vertex(u, 100), before);
}

TEST(HyperboloidFrameTest, TransparencyReachesTheMaterialAtOnce) {
    const LinkedFrames opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const SoSeparator* surface =
        SceneReader::childNamed(drawStyleBranch(u), HyperboloidNames::surface);
    ReplacementCounter surfaces(drawStyleBranch(u), HyperboloidNames::surface);
    u.setTransparency(50, false);
    EXPECT_EQ(SceneReader::child<SoMaterial>(*surface, 0)->transparency[0], 0.5F);
    EXPECT_EQ(u.getTransparency(), 0.5);
    EXPECT_EQ(surfaces.take(), 0);
    u.setTransparency(30, true);
    EXPECT_EQ(surfaces.take(), 1);
}

TEST(HyperboloidFrameTest, SphereHasTheVertexsColourAndPlaceAndTheSharedShape) {
    const LinkedFrames opened;
    HyperboloidFrame& m = opened.hyperboloid(Hyperboloid::MSPACE);
    m.addNewSphere("Helix_test", 321);
    const SoSeparator* sphere = SceneReader::childNamed(phongBranch(m), "Helix_test");
    ASSERT_NE(sphere, nullptr);
    ASSERT_EQ(sphere->getNumChildren(), 3);
    EXPECT_EQ(SceneReader::child<SoMaterial>(*sphere, 0)->diffuseColor[0], color(m, 321));
    EXPECT_EQ(SceneReader::child<SoTransform>(*sphere, 1)->translation.getValue(), vertex(m, 321));
    const auto* shape = SceneReader::child<SoGroup>(*sphere, 2);
    ASSERT_NE(shape, nullptr);
    EXPECT_EQ(SceneReader::child<SoSphere>(*shape, 0)->radius.getValue(), 0.3F);
    const SoSeparator* center = SceneReader::childNamed(phongBranch(m), HyperboloidNames::center);
    EXPECT_EQ(center->getChild(2), shape);
    m.killSphere("Helix_test");
    EXPECT_EQ(SceneReader::childNamed(phongBranch(m), "Helix_test"), nullptr);
}

TEST(HyperboloidFrameTest, ChoosingAVertexTiesTheHelixToAllBrothers) {
    const LinkedFrames opened;
    HelixFrame& helix = opened.firstHelix();
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    opened.hyperboloid(Hyperboloid::USPACE).PrevHelixDead();
    x.SetPreviousHelix(&helix);
    x.refresh_hypos(500);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).GetPreviousHelix(), &helix);
        EXPECT_EQ(spherePosition(opened.hyperboloid(space), helix),
                  vertex(opened.hyperboloid(space), 500));
    }
}

TEST(HyperboloidFrameTest, RefreshedHelixGetsTheUCoordinatesFromEveryFrame) {
    const LinkedFrames opened;
    HelixFrame& helix = opened.firstHelix();
    const HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    for (int space = 0; space < 3; ++space) {
        const int index = 700 + space;
        opened.hyperboloid(space).SetPreviousHelix(&helix);
        opened.hyperboloid(space).refresh_helix(index);
        expectHelixOfVertex(helix, u, index);
    }
}

TEST(HyperboloidFrameTest, RowsClampAndStillRefresh) {
    const LinkedFrames opened;
    HelixFrame& helix = opened.firstHelix();
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const int lastRow = static_cast<int>(u.getNumRow()) - 1;
    u.SetPreviousHelix(&helix);
    u.refresh_hypos(64);
    u.refresh_helix(64);
    helix.setTitle("to be replaced");
    u.moveSphere(HyperboloidFrame::UP);
    expectSpheresAtVertex(opened, helix, 64);
    EXPECT_TRUE(helix.viewerTitle().startsWith("U = ("));
    u.moveSphere(HyperboloidFrame::DOWN);
    expectSpheresAtVertex(opened, helix, 65);
    u.moveSphere(HyperboloidFrame::UP);
    expectSpheresAtVertex(opened, helix, 64);
    u.refresh_helix(64 + lastRow);
    u.moveSphere(HyperboloidFrame::DOWN);
    expectSpheresAtVertex(opened, helix, 64 + lastRow);
}

TEST(HyperboloidFrameTest, ColumnsWrapWithoutEverReachingTheSeam) {
    const LinkedFrames opened;
    HelixFrame& helix = opened.firstHelix();
    HyperboloidFrame& m = opened.hyperboloid(Hyperboloid::MSPACE);
    const int rows = static_cast<int>(m.getNumRow());
    const int seam = static_cast<int>(m.getNumCol()) - 1;
    m.SetPreviousHelix(&helix);
    m.refresh_helix(10);
    m.moveSphere(HyperboloidFrame::RIGHT);
    expectSpheresAtVertex(opened, helix, 10 + (seam - 1) * rows);
    m.moveSphere(HyperboloidFrame::LEFT);
    expectSpheresAtVertex(opened, helix, 10);
    m.moveSphere(HyperboloidFrame::LEFT);
    expectSpheresAtVertex(opened, helix, 10 + rows);
    m.moveSphere(HyperboloidFrame::RIGHT);
    expectSpheresAtVertex(opened, helix, 10);
    m.refresh_helix(10 + seam * rows);
    m.moveSphere(HyperboloidFrame::LEFT);
    expectSpheresAtVertex(opened, helix, 10 + rows);
}

TEST(HyperboloidFrameTest, StepsReachTheFourNeighboursOnAGridThatIsNotSquare) {
    const LinkedFrames opened;
    HelixFrame& helix = opened.firstHelix();
    HyperboloidParameters onOtherGrid;
    onOtherGrid.horizontalPrecision = 30;
    onOtherGrid.verticalPrecision = 20;
    for (int space = 0; space < 3; ++space) {
        opened.hyperboloid(space).setParameters(onOtherGrid);
        opened.hyperboloid(space).reDraw(true, true);
    }
    for (int space = 0; space < 3; ++space) {
        HyperboloidFrame& frame = opened.hyperboloid(space);
        frame.SetPreviousHelix(&helix);
        // Row 11 of column 23.
        for (const auto& [direction, expected] :
             {std::pair(HyperboloidFrame::UP, 470), std::pair(HyperboloidFrame::DOWN, 472),
              std::pair(HyperboloidFrame::RIGHT, 451), std::pair(HyperboloidFrame::LEFT, 491)}) {
            frame.refresh_helix(471);
            frame.moveSphere(direction);
            expectSpheresAtVertex(opened, helix, expected);
            expectHelixOfVertex(helix, opened.hyperboloid(Hyperboloid::USPACE), expected);
        }
    }
}

TEST(HyperboloidFrameTest, PressedDirectionKeysAreConsumedAndNothingElseIs) {
    const LinkedFrames opened;
    HyperboloidFrame& frame = opened.hyperboloid(Hyperboloid::XSPACE);
    for (HelixFrame* helix : {&opened.firstHelix(), static_cast<HelixFrame*>(nullptr)}) {
        for (const auto& [key, answer] :
             {std::pair(SoKeyboardEvent::S, 1), std::pair(SoKeyboardEvent::PAD_4, 1),
              std::pair(SoKeyboardEvent::UP_ARROW, 1), std::pair(SoKeyboardEvent::E, 0),
              std::pair(SoKeyboardEvent::PAD_5, 0)}) {
            frame.SetPreviousHelix(helix);
            SoKeyboardEvent event;
            event.setKey(key);
            event.setState(SoButtonEvent::DOWN);
            EXPECT_EQ(frame.processSoEvent(&event), answer) << key;
            event.setState(SoButtonEvent::UP);
            const int index = opened.firstHelix().getIndex();
            EXPECT_EQ(frame.processSoEvent(&event), 0) << key;
            EXPECT_EQ(opened.firstHelix().getIndex(), index) << key;
        }
    }
}

TEST(HyperboloidFrameTest, StepWithoutATiedHelixChangesNothing) {
    const LinkedFrames opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    u.PrevHelixDead();
    EXPECT_EQ(u.GetPreviousHelix(), nullptr);
    u.moveSphere(HyperboloidFrame::DOWN);
    expectSpheresAtVertex(opened, opened.firstHelix(), 0);
}

TEST(HyperboloidFrameTest, AxisGlyphIsAClosedTubeWithATip) {
    const LinkedFrames opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    u.DrawAxis(2, 0.5);
    const SoSeparator* axis = SceneReader::childNamed(phongBranch(u), HyperboloidNames::axis);
    ASSERT_NE(axis, nullptr);
    ASSERT_EQ(axis->getNumChildren(), 5);
    const auto* material = SceneReader::child<SoMaterial>(*axis, 0);
    for (const SoMFColor* field :
         {&material->ambientColor, &material->diffuseColor, &material->specularColor}) {
        EXPECT_EQ((*field)[0], SbColor(0, 0, 1));
    }
    const auto& points = SceneReader::child<SoCoordinate3>(*axis, 1)->point;
    ASSERT_EQ(points.getNum(), 60);
    for (int j = 0; j < 30; ++j) {
        const double theta = j * 2 * M_PI / 29;
        for (int ring = 0; ring < 2; ++ring) {
            const SbVec3f expected(static_cast<float>(0.5 * std::cos(theta)),
                                   static_cast<float>(0.5 * std::sin(theta)), ring == 0 ? 2 : -2);
            EXPECT_TRUE(points[30 * ring + j].equals(expected, 1e-12F)) << ring << " " << j;
        }
    }
    const auto* mesh = SceneReader::child<SoQuadMesh>(*axis, 2);
    EXPECT_EQ(mesh->verticesPerRow.getValue(), 30);
    EXPECT_EQ(mesh->verticesPerColumn.getValue(), 2);
    const auto* tip = SceneReader::child<SoTransform>(*axis, 3);
    EXPECT_EQ(tip->translation.getValue(), SbVec3f(0, 0, 2));
    EXPECT_EQ(tip->scaleFactor.getValue(), SbVec3f(0.15F, 0.15F, 0.15F));
    EXPECT_TRUE(tip->rotation.getValue().equals(SbRotation(SbVec3f(1, 0, 0), 1.0471976F), 1e-6F));
    EXPECT_NE(SceneReader::child<SoCone>(*axis, 4), nullptr);
}
