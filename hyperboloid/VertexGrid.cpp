#include "hyperboloid/VertexGrid.h"

#include <algorithm>

std::size_t VertexGrid::vertexCount() const {
    return static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows);
}

int VertexGrid::neighbour(int vertex, int direction) const {
    const int row = vertex % rows;
    const int column = vertex / rows;
    const int distinctColumns = std::max(columns - 1, 1);
    switch (direction) {
    case up:
        return index(column, std::max(row - 1, 0));
    case down:
        return index(column, std::min(row + 1, rows - 1));
    case right:
        return index((column + distinctColumns - 1) % distinctColumns, row);
    case left:
        return index((column + 1) % distinctColumns, row);
    default:
        return vertex;
    }
}

int VertexGrid::atSamePlace(int index, int oldCount, int newCount) {
    const double place = static_cast<double>(index) / oldCount;
    return static_cast<int>(static_cast<double>(newCount) * place);
}
