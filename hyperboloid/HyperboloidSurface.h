#pragma once

#include "hyperboloid/HyperboloidSpaces.h"
#include "hyperboloid/VertexGrid.h"
#include "math/Triple.h"

#include <array>
#include <vector>

/**
 * The grid points of the hyperboloid.
 *
 * The grid has columns (angle theta, 0 to 2 pi) and rows (height parameter t, -h to +h); a vertex
 * index is the same parameter point in all three spaces.
 */
namespace HyperboloidSurface {

/** Everything the grid points depend on. */
struct Parameters {
    /** A single column has a NaN angle, a single row a NaN height. */
    VertexGrid grid;
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

/**
 * Writes the grid points into a table that has the grid's size.
 *
 * With r = sqrt(t^2 + 1) the point of X space is
 *
 *     (t alpha0,  cos(theta) r alpha1,  sin(theta) alpha2 r)    without swapped axes,
 *     (cos(theta) r alpha0,  t alpha1,  sin(theta) alpha2 r)    with swapped axes.
 */
void generate(const Parameters& parameters, std::vector<FloatTriple>& vertices);

} // namespace HyperboloidSurface
