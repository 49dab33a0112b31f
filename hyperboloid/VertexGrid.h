#pragma once

#include <cstddef>

/**
 * The numbering of the surface's vertices: columns go around it, rows go along it, and vertex
 * index = row + column * rows. The last column repeats the first, so that the surface closes.
 */
struct VertexGrid {
    /** Directions of a step, as HyperboloidFrame::moveSphere() takes them. */
    static constexpr int up = 0;
    static constexpr int down = 1;
    static constexpr int right = 2;
    static constexpr int left = 3;

    int columns;
    int rows;

    /** columns * rows */
    [[nodiscard]] std::size_t vertexCount() const;

    /** The index of the vertex where a column and a row meet; neither is checked. */
    [[nodiscard]] int index(int column, int row) const { return row + column * rows; }

    /**
     * The vertex one step away, on a grid that has vertices. Rows end at the first and the last;
     * columns wrap around, and the last column, which repeats the first, is never reached. On
     * purpose right lowers the column and left raises it (docs/kept-on-purpose.md). A direction
     * that is none leads nowhere.
     */
    [[nodiscard]] int neighbour(int vertex, int direction) const;

    /**
     * The vertex of a new grid of `newCount` vertices with the share of all that vertex `index` had
     * of an old one: newCount (index / oldCount), computed in double and truncated. The quotient's
     * rounding is part of it: on an unchanged grid some vertices move by one
     * (docs/kept-on-purpose.md).
     */
    static int atSamePlace(int index, int oldCount, int newCount);
};

inline bool operator==(const VertexGrid& left, const VertexGrid& right) {
    return left.columns == right.columns && left.rows == right.rows;
}

inline bool operator!=(const VertexGrid& left, const VertexGrid& right) {
    return !(left == right);
}
