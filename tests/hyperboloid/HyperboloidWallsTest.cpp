#include "hyperboloid/HyperboloidWalls.h"

#include <cmath>
#include <gtest/gtest.h>
#include <tuple>
#include <vector>

namespace {

/** Strip, first quadrilateral, and the one after the last. */
using DrawnRun = std::tuple<int, int, int>;

std::vector<DrawnRun> drawnRuns(const std::vector<SbVec3f>& points, int rows, int columns,
                                const SbVec4d& plane) {
    std::vector<DrawnRun> runs;
    HyperboloidWalls(points.data(), rows, columns, plane).draw([&](int strip, int first, int last) {
        runs.emplace_back(strip, first, last);
    });
    return runs;
}

/** Three columns of four vertices each, whose x decides on which side of x = 0 they lie. */
const std::vector<SbVec3f> points{
    {-1, 9, 3},   {-1, 2, 4}, {5, 0, 7},  {-8.5F, 1, 1}, //
    {-3, 3, 3},   {2, 2, 2},  {1, 1, 1},  {-7, -2, 5},   //
    {6.5F, 4, 2}, {8, 5, 5},  {-2, 6, 9}, {-4, 1, 8},    //
};

} // namespace

TEST(HyperboloidWalls, WhatFacesAwayIsDrawnFirstAndEveryQuadrilateralOnce) {
    EXPECT_EQ(drawnRuns(points, 4, 3, {1, 0, 0, 0}),
              (std::vector<DrawnRun>{{0, 0, 1}, {0, 2, 3}, {1, 2, 3}, {0, 1, 2}, {1, 0, 2}}));
}

TEST(HyperboloidWalls, ThePlaneTurnedRoundExchangesThem) {
    EXPECT_EQ(drawnRuns(points, 4, 3, {-1, 0, 0, 0}),
              (std::vector<DrawnRun>{{0, 1, 2}, {1, 0, 2}, {0, 0, 1}, {0, 2, 3}, {1, 2, 3}}));
}

TEST(HyperboloidWalls, ThePlaneLiesWhereItsLastNumberSays) {
    EXPECT_EQ(drawnRuns(points, 4, 3, {1, 0, 0, 1}),
              (std::vector<DrawnRun>{{0, 2, 3}, {1, 2, 3}, {0, 0, 2}, {1, 0, 2}}));
}

TEST(HyperboloidWalls, WhatLiesInThePlaneAndWhatIsNotFiniteIsNear) {
    const float undefined = std::nanf("");
    const std::vector<SbVec3f> strips{{1, 0, 0},  {-1, 1, 0}, {-2, 0, 1},        {2, 1, 1},
                                      {-3, 2, 2}, {1, 3, 3},  {undefined, 1, 0}, {-9, 1, 1}};
    EXPECT_EQ(drawnRuns(strips, 2, 4, {1, 0, 0, 0}),
              (std::vector<DrawnRun>{{1, 0, 1}, {0, 0, 1}, {2, 0, 1}}));
}
