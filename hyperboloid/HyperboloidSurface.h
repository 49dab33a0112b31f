#pragma once

#include "hyperboloid/HyperboloidSpaces.h"

#include <array>
#include <cstddef>
#include <vector>

/**
 * The grid points of the hyperboloid.
 *
 * The grid has columns (angle theta, 0 to 2 pi) and rows (height parameter t, -h to +h). Vertex k
 * of column i and row j is k = i * rows + j, the same parameter point in all three spaces. The last
 * column repeats the first, so that the surface closes.
 */
namespace HyperboloidSurface {

/** Everything the grid points depend on. */
struct Parameters {
    /** Number of angle steps; a single column has a NaN angle. */
    unsigned int columns;
    /** Number of height steps; a single row has a NaN height. */
    unsigned int rows;
    /** h, half the range of the height parameter. */
    float halfHeight;
    /** alpha0, alpha1, alpha2. */
    std::array<float, 3> semiAxes;
    /** Whether the axis of the surface is the second coordinate of X space instead of the first. */
    bool swapAxes;
    /** The space of the points, as in HyperboloidSpaces; an unknown space is taken for X. */
    int space;
    HyperboloidSpaces spaces;
};

/** The number of whole grid columns, at most `columns`, that a table for `vertexCount` vertices
 * holds. */
std::size_t columnsThatFit(unsigned int columns, unsigned int rows, std::size_t vertexCount);

/**
 * Writes the grid points into a table of 3 floats per vertex.
 *
 * With r = sqrt(t^2 + 1) the point of X space is
 *
 *     (t alpha0,  cos(theta) r alpha1,  sin(theta) alpha2 r)    without swapped axes,
 *     (cos(theta) r alpha0,  t alpha1,  sin(theta) alpha2 r)    with swapped axes.
 *
 * The table keeps its size: only the columns that fit into it are written.
 */
void generate(const Parameters& parameters, std::vector<float>& vertices);

} // namespace HyperboloidSurface
