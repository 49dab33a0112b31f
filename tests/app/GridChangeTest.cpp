// What becomes of the helices when the parameter dialog gives the surfaces another grid.

#include "helix/HelixNames.h"
#include "hyperboloid/HyperboloidParameters.h"
#include "tests/app/ParameterDialogs.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/ReplacementCounter.h"
#include "tests/support/SceneReader.h"
#include "tests/support/Spheres.h"

#include <gtest/gtest.h>

namespace {

void expectTiedTo(const OpenedWindow& opened, const HelixFrame& helix, int index) {
    EXPECT_EQ(helix.getIndex(), index);
    for (int space = 0; space < 3; ++space) {
        const HyperboloidFrame& frame = opened.hyperboloid(space);
        EXPECT_EQ(spherePosition(frame, helix),
                  SbVec3f(frame.getVertex(index, 0), frame.getVertex(index, 1),
                          frame.getVertex(index, 2)))
            << "space " << space;
        EXPECT_EQ(SceneReader::countNamed(SceneReader::phongBranch(*frame.getSceneRoot()),
                                          helix.getName()),
                  1);
    }
    EXPECT_EQ(helix.getHelix().getTorsion(),
              opened.hyperboloid(Hyperboloid::USPACE).getVertex(index, 2));
}

/** Gives the grid another number of columns and rows through the dialog. */
void changeGrid(const OpenedWindow& opened, int columns, int rows) {
    DialogDriver({ParameterDialogs::enter({{"Horizontal Prec:", QString::number(columns)},
                                           {"Vertical Prec:", QString::number(rows)}})})
        .during([&] { opened.action("hyperboloidParamsAct").trigger(); });
}

} // namespace

TEST(GridChangeTest, FinerGridKeepsEveryHelixAtItsRelativePlace) {
    const OpenedWindow opened;
    changeGrid(opened, 20, 50);
    opened.action("newAct").trigger();
    HelixFrame& first = *opened.helices()[0];
    HelixFrame& second = *opened.helices()[1];
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    opened.tie(second, x);
    x.refresh_hypos(999);
    x.refresh_helix(999);
    opened.tie(first, x);
    x.refresh_hypos(250);
    x.refresh_helix(250);
    changeGrid(opened, 40, 50);
    expectTiedTo(opened, first, 500);
    expectTiedTo(opened, second, 1998);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).GetPreviousHelix(), &first) << "space " << space;
    }
}

TEST(GridChangeTest, EverySurfaceMovesItsSphereAndRefreshesTheHelixOnce) {
    const OpenedWindow opened;
    ReplacementCounter drawings(*opened.firstHelix().getSceneRoot(), HelixNames::tube);
    changeGrid(opened, 30, 20);
    EXPECT_EQ(drawings.take(), 3);
}

TEST(GridChangeTest, HelixOfUIsTiedToAllSurfacesAfterwards) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    HelixFrame& ofU = *opened.helices()[1];
    opened.hyperboloid(Hyperboloid::USPACE).SetPreviousHelix(&ofU);
    opened.hyperboloid(Hyperboloid::XSPACE).SetPreviousHelix(opened.helices()[0]);
    opened.hyperboloid(Hyperboloid::MSPACE).PrevHelixDead();
    changeGrid(opened, 30, 20);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).GetPreviousHelix(), &ofU) << "space " << space;
    }
}

TEST(GridChangeTest, NoHelixIsTiedAfterwardsWhenNoneWasBefore) {
    const OpenedWindow opened;
    for (int space = 0; space < 3; ++space) {
        opened.hyperboloid(space).PrevHelixDead();
    }
    changeGrid(opened, 10, 10);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).GetPreviousHelix(), nullptr);
    }
}

TEST(GridChangeTest, ExtremeGridsComeAndGo) {
    const OpenedWindow opened;
    HelixFrame& helix = opened.firstHelix();
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    opened.tie(helix, u);
    u.refresh_hypos(64 * 64 - 1);
    u.refresh_helix(64 * 64 - 1);
    int index = 64 * 64 - 1;
    int count = 64 * 64;
    const std::vector<std::pair<int, int>> grids{{5, 5},   {500, 500}, {5, 5},  {5, 500},
                                                 {500, 5}, {64, 64},   {64, 64}};
    for (const auto& [columns, rows] : grids) {
        changeGrid(opened, columns, rows);
        index = static_cast<int>(columns * rows * (static_cast<double>(index) / count));
        count = columns * rows;
        EXPECT_EQ(u.getNumVertices(), static_cast<unsigned int>(count));
        expectTiedTo(opened, helix, index);
        EXPECT_EQ(u.GetPreviousHelix(), &helix);
        u.moveSphere(HyperboloidFrame::DOWN);
        u.moveSphere(HyperboloidFrame::UP);
        index = helix.getIndex();
        EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn()) << columns << " x " << rows;
    }
}

TEST(GridChangeTest, WorksWithoutAnyHelix) {
    const OpenedWindow opened;
    opened.closeFrame(opened.firstHelix());
    changeGrid(opened, 12, 9);
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::MSPACE).getNumVertices(), 108U);
}

TEST(GridChangeTest, FifteenNumbersReachEveryModelEachInItsPlace) {
    const OpenedWindow opened;
    opened.window().refresh_hyperboloids(1.37, 2.91, 1.73, 0.59, -0.83, 0.71, -0.43, 0.29, 13, 8,
                                         0.17, 5.3, 6.1, 0.07, 0.11);
    for (int space = 0; space < 3; ++space) {
        const HyperboloidParameters reached = HyperboloidParameters::of(opened.hyperboloid(space));
        EXPECT_NEAR(reached.K1, 1.37, 1e-6);
        EXPECT_NEAR(reached.K2, 2.91, 1e-6);
        EXPECT_NEAR(reached.K3, 1.73, 1e-6);
        EXPECT_NEAR(reached.K13, 0.59, 1e-6);
        EXPECT_NEAR(reached.K23, -0.83, 1e-6);
        EXPECT_NEAR(reached.U1, 0.71, 1e-6);
        EXPECT_NEAR(reached.U2, -0.43, 1e-6);
        EXPECT_NEAR(reached.U3, 0.29, 1e-6);
        EXPECT_EQ(reached.horizontalPrecision, 13);
        EXPECT_EQ(reached.verticalPrecision, 8);
        EXPECT_NEAR(reached.pointRadius, 0.17, 1e-6);
        EXPECT_NEAR(reached.u3constRange, 5.3, 1e-6);
        EXPECT_NEAR(reached.u3axisRange, 6.1, 1e-6);
        EXPECT_NEAR(reached.u3constRadius, 0.07, 1e-6);
        EXPECT_NEAR(reached.u3axisRadius, 0.11, 1e-6);
    }
}
