#include "hyperboloid/VertexGrid.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

constexpr std::array<int, 4> directions{VertexGrid::up, VertexGrid::down, VertexGrid::right,
                                        VertexGrid::left};

/** The vertices that are one step up, down, right and left. */
std::array<int, 4> neighboursOf(const VertexGrid& grid, int vertex) {
    std::array<int, 4> neighbours{};
    for (std::size_t i = 0; i < directions.size(); ++i) {
        neighbours[i] = grid.neighbour(vertex, directions[i]);
    }
    return neighbours;
}

using Neighbours = std::array<int, 4>;

TEST(VertexGrid, DirectionsHaveTheirNumbers) {
    EXPECT_EQ(directions, (Neighbours{0, 1, 2, 3}));
}

TEST(VertexGrid, NumbersTheVerticesColumnByColumn) {
    const VertexGrid grid{7, 11};
    EXPECT_EQ(grid.vertexCount(), 77U);
    int next = 0;
    for (int column = 0; column < 7; ++column) {
        for (int row = 0; row < 11; ++row) {
            EXPECT_EQ(grid.index(column, row), next++);
        }
    }
}

TEST(VertexGrid, CountsMoreVerticesThanAnIntHolds) {
    EXPECT_EQ((VertexGrid{70000, 60000}).vertexCount(), 4200000000U);
    EXPECT_EQ((VertexGrid{0, 9}).vertexCount(), 0U);
    EXPECT_EQ((VertexGrid{9, 0}).vertexCount(), 0U);
}

TEST(VertexGrid, StepsInTheInteriorReachTheFourNeighbours) {
    // Column 3, row 4: 3 * 11 + 4.
    EXPECT_EQ(neighboursOf({7, 11}, 37), (Neighbours{36, 38, 26, 48}));
    // The same index on the transposed grid is column 5, row 2.
    EXPECT_EQ(neighboursOf({11, 7}, 37), (Neighbours{36, 38, 30, 44}));
}

TEST(VertexGrid, RowsEndAtTheFirstAndTheLast) {
    const VertexGrid grid{7, 11};
    EXPECT_EQ(neighboursOf(grid, 22), (Neighbours{22, 23, 11, 33}));
    EXPECT_EQ(neighboursOf(grid, 32), (Neighbours{31, 32, 21, 43}));
}

TEST(VertexGrid, ColumnsWrapAndLeaveTheLastOut) {
    const VertexGrid grid{7, 11};
    // Row 6 of column 0, of column 5, and of column 6, the repeated one.
    EXPECT_EQ(neighboursOf(grid, 6), (Neighbours{5, 7, 61, 17}));
    EXPECT_EQ(neighboursOf(grid, 61), (Neighbours{60, 62, 50, 6}));
    EXPECT_EQ(neighboursOf(grid, 72), (Neighbours{71, 73, 61, 17}));
}

TEST(VertexGrid, ATurnLeftOrRightComesBackWithoutTheLastColumn) {
    const VertexGrid grid{7, 11};
    for (const int direction : {VertexGrid::left, VertexGrid::right}) {
        std::vector<int> visited;
        int vertex = 8;
        for (int step = 0; step < 6; ++step) {
            vertex = grid.neighbour(vertex, direction);
            visited.push_back(vertex);
        }
        const std::vector<int> leftwards{19, 30, 41, 52, 63, 8};
        const std::vector<int> rightwards{63, 52, 41, 30, 19, 8};
        EXPECT_EQ(visited, direction == VertexGrid::left ? leftwards : rightwards);
    }
}

TEST(VertexGrid, OnASingleColumnOnlyTheRowsAreSteppedThrough) {
    EXPECT_EQ(neighboursOf({1, 5}, 3), (Neighbours{2, 4, 3, 3}));
    EXPECT_EQ(neighboursOf({1, 5}, 0), (Neighbours{0, 1, 0, 0}));
}

TEST(VertexGrid, OnASingleRowOnlyTheColumnsAreSteppedThrough) {
    EXPECT_EQ(neighboursOf({5, 1}, 3), (Neighbours{3, 3, 2, 0}));
    EXPECT_EQ(neighboursOf({5, 1}, 0), (Neighbours{0, 0, 3, 1}));
}

TEST(VertexGrid, TheSmallestGridsKeepTheirOneVertex) {
    EXPECT_EQ(neighboursOf({1, 1}, 0), (Neighbours{0, 0, 0, 0}));
    // Two columns are one and its repetition.
    EXPECT_EQ(neighboursOf({2, 3}, 1), (Neighbours{0, 2, 1, 1}));
}

TEST(VertexGrid, AnUnknownDirectionLeadsNowhere) {
    EXPECT_EQ((VertexGrid{7, 11}).neighbour(37, 4), 37);
    EXPECT_EQ((VertexGrid{7, 11}).neighbour(72, -1), 72);
}

TEST(VertexGrid, EqualsAGridOfTheSameColumnsAndRows) {
    const VertexGrid grid{7, 11};
    EXPECT_TRUE(grid == (VertexGrid{7, 11}));
    EXPECT_TRUE(grid != (VertexGrid{11, 7}));
    EXPECT_TRUE(grid != (VertexGrid{7, 12}));
    EXPECT_FALSE(grid != (VertexGrid{7, 11}));
}

TEST(VertexGrid, ThePlaceOnAnotherGridIsTheRelativeOne) {
    // 37 of 77 is 0.4805...: of 1000 vertices the 480th, of 20 the 9th.
    EXPECT_EQ(VertexGrid::atSamePlace(37, 77, 1000), 480);
    EXPECT_EQ(VertexGrid::atSamePlace(37, 77, 20), 9);
    EXPECT_EQ(VertexGrid::atSamePlace(0, 77, 20), 0);
    EXPECT_EQ(VertexGrid::atSamePlace(76, 77, 20), 19);
    EXPECT_EQ(VertexGrid::atSamePlace(76, 77, 1), 0);
}

/** The place by whole numbers: what it would be without rounding. */
int exactPlace(int index, int oldCount, int newCount) {
    return static_cast<int>(static_cast<long long>(index) * newCount / oldCount);
}

TEST(VertexGrid, ThePlaceIsTakenFromTheRoundedQuotient) {
    for (const auto& [oldCount, newCount] :
         {std::array{4096, 2500}, std::array{77, 4096}, std::array{2500, 2500}}) {
        for (int index = 0; index < oldCount; ++index) {
            const double quotient = static_cast<double>(index) / static_cast<double>(oldCount);
            const double product = static_cast<double>(newCount) * quotient;
            ASSERT_EQ(VertexGrid::atSamePlace(index, oldCount, newCount),
                      static_cast<int>(product));
        }
    }
}

TEST(VertexGrid, OnAnUnchangedGridSomeVerticesMoveByOne) {
    int moved = 0;
    for (int index = 0; index < 50 * 50; ++index) {
        const int place = VertexGrid::atSamePlace(index, 50 * 50, 50 * 50);
        if (place != exactPlace(index, 50 * 50, 50 * 50)) {
            EXPECT_EQ(place, index - 1);
            ++moved;
        }
    }
    EXPECT_EQ(moved, 144);
}

} // namespace
