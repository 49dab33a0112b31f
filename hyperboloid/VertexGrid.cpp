#include "hyperboloid/VertexGrid.h"

#include <algorithm>

int VertexGrid::neighbour(int index, int direction) const {
    int row = index % rows;
    int column = index / rows;
    const int distinctColumns = std::max(columns - 1, 1);
    switch (direction) {
    case up:
        row = std::max(row - 1, 0);
        break;
    case down:
        row = std::min(row + 1, rows - 1);
        break;
    case right:
        column = (column + distinctColumns - 1) % distinctColumns;
        break;
    case left:
        column = (column + 1) % distinctColumns;
        break;
    default:
        break;
    }
    return row + column * rows;
}

int VertexGrid::atSamePlace(int index, int oldCount, int newCount) {
    const double place = static_cast<double>(index) / oldCount;
    return static_cast<int>(static_cast<double>(newCount) * place);
}
