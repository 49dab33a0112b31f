#include "hyperboloid/HyperboloidSurface.h"

#include "tests/hyperboloid/ExposedHyperboloid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

constexpr int allSpaces[] = {Hyperboloid::USPACE, Hyperboloid::XSPACE, Hyperboloid::MSPACE};

bool allFinite(const std::vector<float>& table) {
    return std::all_of(table.begin(), table.end(),
                       [](float value) { return std::isfinite(value); });
}

bool allZero(const std::vector<float>& table) {
    return std::all_of(table.begin(), table.end(), [](float value) { return value == 0.0F; });
}

bool allFinite(const std::vector<FloatTriple>& table) {
    return allFinite(floatsOf(table));
}

bool allZero(const std::vector<FloatTriple>& table) {
    return allZero(floatsOf(table));
}

TEST(HyperboloidSurface, FirstVertexOfXSpaceIsTheKnownPoint) {
    const ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    EXPECT_EQ(hyperboloid.getVertex(0, 0), static_cast<float>(2.0 * std::sqrt(17.0)));
    EXPECT_NEAR(hyperboloid.getVertex(0, 0), 8.2462F, 1e-4F);
    EXPECT_EQ(hyperboloid.getVertex(0, 1), -8.0F);
    EXPECT_EQ(hyperboloid.getVertex(0, 2), 0.0F);
}

TEST(HyperboloidSurface, FirstVertexOfUSpaceIsThatPointMappedBack) {
    const ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    // x - s = (y1, y2, y3); R^-1 solves u1 + u2 = y1, u1 - u2 - 2 u3 = y2, u3 = y3.
    const double y1 = 2.0 * std::sqrt(17.0) - 2.0;
    const double y2 = -8.0 - 2.0;
    const double u3 = 1.0;
    EXPECT_FLOAT_EQ(hyperboloid.getVertex(0, 0), static_cast<float>((y1 + y2 + 2.0 * u3) / 2.0));
    EXPECT_FLOAT_EQ(hyperboloid.getVertex(0, 1), static_cast<float>((y1 - y2 - 2.0 * u3) / 2.0));
    EXPECT_FLOAT_EQ(hyperboloid.getVertex(0, 2), static_cast<float>(u3));
}

TEST(HyperboloidSurface, SwappedAxesPutTheHeightIntoTheSecondCoordinate) {
    ExposedHyperboloid swapped(startUp, Hyperboloid::XSPACE);
    swapped.regenerate(startUp, 9, 5);
    ExposedHyperboloid straight(unswapped, Hyperboloid::XSPACE);
    straight.regenerate(unswapped, 9, 5);
    for (int k = 0; k < 45; ++k) {
        const float t = static_cast<float>(k % 5) * 2.0F - 4.0F;
        EXPECT_EQ(swapped.getVertex(k, 1), 2.0F * t);
        EXPECT_EQ(straight.getVertex(k, 0), 2.0F * t);
        EXPECT_EQ(swapped.getVertex(k, 0), straight.getVertex(k, 1));
        EXPECT_EQ(swapped.getVertex(k, 2), straight.getVertex(k, 2));
    }
}

TEST(HyperboloidSurface, RunsOverTheModelsRangeOfHeights) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    hyperboloid.tRange = 2.75F;
    hyperboloid.regenerate(startUp, 9, 5);
    for (int k = 0; k < 45; ++k) {
        EXPECT_EQ(hyperboloid.getVertex(k, 1), 2.75F * static_cast<float>(k % 5) - 5.5F) << k;
    }
}

TEST(HyperboloidSurface, EachSemiAxisScalesItsOwnCoordinate) {
    for (const bool swapAxes : {false, true}) {
        const HyperboloidSurface::Parameters parameters{
            {5, 3},
            4.0F,
            {2.0F, 3.0F, 5.0F},
            swapAxes,
            HyperboloidSpaces::X,
            HyperboloidSpaces(Matrice(), Vecteur(3), Matrice(), Vecteur(3))};
        std::vector<FloatTriple> table(15);
        HyperboloidSurface::generate(parameters, table);
        const std::vector<float> vertices = floatsOf(table);
        const float root = std::sqrt(17.0F);
        // Column 0 (theta 0), row 0 (t = -4).
        EXPECT_FLOAT_EQ(vertices[swapAxes ? 0 : 1], root * (swapAxes ? 2.0F : 3.0F));
        EXPECT_FLOAT_EQ(vertices[swapAxes ? 1 : 0], -4.0F * (swapAxes ? 3.0F : 2.0F));
        EXPECT_EQ(vertices[2], 0.0F);
        // Column 1 (theta pi/2), row 1 (t = 0).
        EXPECT_NEAR(vertices[3 * 4 + (swapAxes ? 0 : 1)], 0.0F, 1e-6F);
        EXPECT_EQ(vertices[3 * 4 + (swapAxes ? 1 : 0)], 0.0F);
        EXPECT_FLOAT_EQ(vertices[3 * 4 + 2], 5.0F);
    }
}

TEST(HyperboloidSurface, AnInfiniteSemiAxisMakesTheOtherPartNan) {
    const float infinity = std::numeric_limits<float>::infinity();
    const HyperboloidSurface::Parameters parameters{
        {3, 3},
        4.0F,
        {infinity, 1.0F, 1.0F},
        false,
        HyperboloidSpaces::X,
        HyperboloidSpaces(Matrice(), Vecteur(3), Matrice(), Vecteur(3))};
    std::vector<FloatTriple> table(9);
    HyperboloidSurface::generate(parameters, table);
    const std::vector<float> vertices = floatsOf(table);
    EXPECT_TRUE(std::isinf(vertices[0]));
    EXPECT_TRUE(std::isnan(vertices[1]));
    EXPECT_EQ(vertices[2], 0.0F);
}

TEST(HyperboloidSurface, FirstAndLastColumnCoincideInEverySpace) {
    for (const int space : allSpaces) {
        ExposedHyperboloid hyperboloid(startUp, space);
        hyperboloid.regenerate(startUp, 37, 21);
        for (int j = 0; j < 21; ++j) {
            for (int comp = 0; comp < 3; ++comp) {
                EXPECT_NEAR(hyperboloid.getVertex(j, comp),
                            hyperboloid.getVertex(36 * 21 + j, comp), 1e-5F);
            }
        }
    }
}

TEST(HyperboloidSurface, EnergiesOfUSpaceRunFromExactlyZeroToExactlyOne) {
    for (const HyperboloidParameters& parameters : {startUp, unswapped}) {
        const ExposedHyperboloid hyperboloid(parameters, Hyperboloid::USPACE);
        const auto [lowest, highest] =
            std::minmax_element(hyperboloid.energies.begin(), hyperboloid.energies.end());
        EXPECT_EQ(*lowest, 0.0F);
        EXPECT_EQ(*highest, 1.0F);
    }
}

TEST(HyperboloidSurface, OnlyUSpaceComputesEnergiesAndColours) {
    for (const int space : {Hyperboloid::XSPACE, Hyperboloid::MSPACE}) {
        ExposedHyperboloid hyperboloid(startUp, space);
        EXPECT_TRUE(allZero(hyperboloid.energies));
        EXPECT_TRUE(allZero(hyperboloid.colors));
        const FloatTriple copied{0.25F, 0.31F, 0.47F};
        hyperboloid.colors[7] = copied;
        hyperboloid.generateHyperboloidPoints(true, true);
        EXPECT_EQ(hyperboloid.colors[7], copied) << "copied colours stay";
        EXPECT_FALSE(allZero(hyperboloid.vertices));
    }
}

TEST(HyperboloidSurface, PointsWithoutColoursLeaveTheColours) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.init_tables();
    hyperboloid.generateHyperboloidPoints(true, false);
    EXPECT_TRUE(allZero(hyperboloid.colors));
    EXPECT_FALSE(allZero(hyperboloid.energies));
    EXPECT_FALSE(allZero(hyperboloid.vertices));
}

TEST(HyperboloidSurface, NeitherPointsNorColoursDoesNothing) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.init_tables();
    hyperboloid.generateHyperboloidPoints(false, false);
    EXPECT_TRUE(allZero(hyperboloid.vertices));
    EXPECT_TRUE(allZero(hyperboloid.colors));
}

TEST(HyperboloidSurface, NewTablesHaveTheSizeOfTheGridAndHoldZeros) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.setGrid(startUp, 7, 11);
    hyperboloid.init_tables();
    EXPECT_EQ(hyperboloid.vertices.size(), 77U);
    EXPECT_EQ(hyperboloid.colors.size(), 77U);
    EXPECT_EQ(hyperboloid.energies.size(), 77U);
    EXPECT_TRUE(allZero(hyperboloid.vertices));
    EXPECT_TRUE(allZero(hyperboloid.colors));
    EXPECT_TRUE(allZero(hyperboloid.energies));
}

/** Whether an action is refused with a text that names what was left out. */
template <typename Action>
void expectMissingTables(Action action) {
    try {
        action();
        ADD_FAILURE() << "tables of another grid were taken";
    } catch (const std::logic_error& error) {
        EXPECT_NE(std::string(error.what()).find("init_tables()"), std::string::npos)
            << error.what();
    }
}

TEST(HyperboloidSurface, AnotherGridIsRefusedUntilTheTablesAreMadeAnew) {
    for (const int space : allSpaces) {
        ExposedHyperboloid hyperboloid(startUp, space);
        hyperboloid.regenerate(startUp, 12, 20);
        const std::vector<FloatTriple> vertices = hyperboloid.vertices;
        const std::vector<FloatTriple> colors = hyperboloid.colors;
        const std::vector<float> energies = hyperboloid.energies;
        // More, fewer, and as many vertices in another shape.
        for (const auto& [columns, rows] :
             {std::pair{40, 21}, std::pair{5, 20}, std::pair{20, 12}, std::pair{0, 0}}) {
            hyperboloid.setGrid(unswapped, columns, rows);
            expectMissingTables([&] { hyperboloid.generateHyperboloidPoints(true, true); });
            expectMissingTables([&] { hyperboloid.generateHyperboloidPoints(true, false); });
            expectMissingTables([&] { hyperboloid.generateHyperboloidPoints(false, true); });
            expectMissingTables([&] { hyperboloid.normalize_energy(); });
            EXPECT_EQ(hyperboloid.vertices, vertices);
            EXPECT_EQ(hyperboloid.colors, colors);
            EXPECT_EQ(hyperboloid.energies, energies);
        }
        hyperboloid.init_tables();
        EXPECT_NO_THROW(hyperboloid.generateHyperboloidPoints(true, true));
        EXPECT_NO_THROW(hyperboloid.normalize_energy());
    }
}

TEST(HyperboloidSurface, TheRefusalNamesBothGrids) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.regenerate(startUp, 12, 20);
    hyperboloid.setGrid(startUp, 7, 11);
    try {
        hyperboloid.normalize_energy();
        FAIL() << "tables of another grid were taken";
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), "The tables hold 12 x 20 vertices, the grid 7 x 11: "
                                   "init_tables() is missing.");
    }
}

TEST(HyperboloidSurface, TablesThatCouldNotBeMadeAreOfNoGrid) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.regenerate(startUp, 12, 20);
    hyperboloid.setGrid(startUp, 2000000000, 2000000000);
    EXPECT_THROW(hyperboloid.init_tables(), std::length_error);
    hyperboloid.setGrid(startUp, 12, 20);
    expectMissingTables([&] { hyperboloid.generateHyperboloidPoints(true, true); });
}

TEST(HyperboloidSurface, TheGridBackAsItWasNeedsNoNewTables) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.regenerate(startUp, 12, 20);
    const std::vector<FloatTriple> vertices = hyperboloid.vertices;
    hyperboloid.setGrid(startUp, 20, 12);
    hyperboloid.setGrid(startUp, 12, 20);
    hyperboloid.generateHyperboloidPoints(true, true);
    EXPECT_EQ(hyperboloid.vertices, vertices);
}

TEST(HyperboloidSurface, AGridWithoutColumnsOrRowsHasNoVertices) {
    for (const int space : allSpaces) {
        for (const auto& [columns, rows] : {std::pair{0, 0}, std::pair{0, 9}, std::pair{9, 0}}) {
            ExposedHyperboloid hyperboloid(startUp, space);
            hyperboloid.regenerate(startUp, columns, rows);
            EXPECT_EQ(hyperboloid.getNumVertices(), 0U);
            EXPECT_TRUE(hyperboloid.vertices.empty());
            hyperboloid.normalize_energy();
        }
    }
}

TEST(HyperboloidSurface, ASingleColumnHasANanAngle) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    hyperboloid.regenerate(startUp, 1, 3);
    EXPECT_TRUE(std::isnan(hyperboloid.getVertex(0, 0)));
    EXPECT_EQ(hyperboloid.getVertex(0, 1), -8.0F);
    EXPECT_TRUE(std::isnan(hyperboloid.getVertex(0, 2)));
}

TEST(HyperboloidSurface, ASingleRowHasANanHeight) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    hyperboloid.regenerate(startUp, 3, 1);
    for (const float coordinate : floatsOf(hyperboloid.vertices)) {
        EXPECT_TRUE(std::isnan(coordinate));
    }
}

TEST(HyperboloidSurface, TheSmallestClosedGridHasItsFourCorners) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    hyperboloid.regenerate(startUp, 2, 2);
    EXPECT_EQ(hyperboloid.getVertex(0, 1), -8.0F);
    EXPECT_EQ(hyperboloid.getVertex(1, 1), 8.0F);
    EXPECT_EQ(hyperboloid.getVertex(2, 1), -8.0F);
    EXPECT_EQ(hyperboloid.getVertex(3, 1), 8.0F);
    EXPECT_TRUE(allFinite(hyperboloid.vertices));
}

TEST(HyperboloidSurface, EqualK1AndK2GiveNoFiniteSurfaceButNoErrorEither) {
    const HyperboloidParameters equal{1.0, 1.0, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0};
    for (const int space : allSpaces) {
        ExposedHyperboloid hyperboloid(startUp, space);
        hyperboloid.regenerate(equal, 8, 8);
        EXPECT_FALSE(allFinite(hyperboloid.vertices));
    }
}

TEST(HyperboloidSurface, NanEnergiesAreColouredWithTheLowestChannelValue) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    // K = 0: every energy is 0.
    hyperboloid.set_k_uHat(0.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0);
    hyperboloid.generateHyperboloidPoints(true, true);
    for (const float energy : hyperboloid.energies) {
        EXPECT_TRUE(std::isnan(energy));
    }
    for (const float channel : floatsOf(hyperboloid.colors)) {
        EXPECT_FLOAT_EQ(channel, 0.1F);
    }
}

TEST(HyperboloidSurface, PositionForParametersIgnoresSwappedAxesAndNegatesTheHeight) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    ASSERT_TRUE(hyperboloid.swapAxes);
    hyperboloid.semiAxis = {2.0F, 3.0F, 5.0F};
    const float t = 1.3F;
    const float theta = 0.7F;
    float p[3];
    hyperboloid.computePositionForParams(t, theta, p);
    const float r = std::sqrt(t * t + 1.0F);
    EXPECT_EQ(p[0], 2.0F * r * std::cos(theta));
    EXPECT_EQ(p[1], 3.0F * r * std::sin(theta));
    EXPECT_EQ(p[2], -5.0F * t);
}

TEST(HyperboloidSurface, PositionForParametersIsComputedInSinglePrecision) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    hyperboloid.semiAxis = {2.7F, 3.3F, 5.9F};
    int differences = 0;
    int radiusDifferences = 0;
    for (float t = -3.9F; t < 4.0F; t += 0.37F) {
        const float theta = 1.7F * t;
        float p[3];
        hyperboloid.computePositionForParams(t, theta, p);
        const float r = std::sqrt(t * t + 1.0F);
        EXPECT_EQ(p[0], 2.7F * r * std::cos(theta));
        EXPECT_EQ(p[1], 3.3F * r * std::sin(theta));
        const double exactRadius = std::sqrt(double{t} * t + 1.0);
        const double exactCosine = std::cos(double{theta});
        differences += p[0] != static_cast<float>(2.7F * exactRadius * exactCosine) ? 1 : 0;
        radiusDifferences += r != static_cast<float>(exactRadius) ? 1 : 0;
    }
    EXPECT_GT(differences, 0) << "double precision must give other numbers here";
    EXPECT_GT(radiusDifferences, 0) << "and another radius";
}

} // namespace
