#include "hyperboloid/HyperboloidWalls.h"

HyperboloidWalls::HyperboloidWalls(const SbVec3f* points, int rows, int columns,
                                   const SbVec4d& plane)
    : quadsPerStrip(rows - 1)
    , strips(columns - 1) {
    sides.reserve(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
    for (int vertex = 0; vertex < rows * columns; ++vertex) {
        const SbVec3f& point = points[vertex];
        sides.push_back(plane.dot(SbVec4d(point[0], point[1], point[2], 1)));
    }
}

void HyperboloidWalls::draw(const DrawRun& drawRun) const {
    drawWall(true, drawRun);
    drawWall(false, drawRun);
}

void HyperboloidWalls::drawWall(bool far, const DrawRun& drawRun) const {
    for (int strip = 0; strip < strips; ++strip) {
        int first = 0;
        while (first < quadsPerStrip) {
            int last = first;
            while (last < quadsPerStrip && isFar(strip, last) == far) {
                ++last;
            }
            if (last > first) {
                drawRun(strip, first, last);
            }
            first = last + 1;
        }
    }
}

bool HyperboloidWalls::isFar(int strip, int quad) const {
    const auto rows = static_cast<std::size_t>(quadsPerStrip) + 1;
    const std::size_t left =
        static_cast<std::size_t>(strip) * rows + static_cast<std::size_t>(quad);
    const std::size_t right = left + rows;
    return sides[left] + sides[left + 1] + sides[right] + sides[right + 1] < 0;
}
