#include "hyperboloid/HyperboloidSurface.h"

#include "math/Constants.h"

#include <cmath>
#include <cstddef>

namespace {

/** What all vertices of one grid column share. */
struct Column {
    double cosine;
    /** sin(theta) alpha2 */
    double scaledSine;
};

/** What all vertices of one grid row share. */
struct Row {
    /** r = sqrt(t^2 + 1) */
    double radius;
    /** The point's coordinate along the axis of the surface. */
    double axisCoordinate;
};

/** The semi-axes by the part they play in the formulas. */
struct OrderedSemiAxes {
    double ring;
    double alongAxis;
};

OrderedSemiAxes orderSemiAxes(const std::array<float, 3>& semiAxes, bool swapAxes) {
    const double w = swapAxes ? 1.0 : 0.0;
    // A semi-axis of the other part counts 0 times on purpose: an infinite one gives NaN.
    return {w * semiAxes[0] + (1.0 - w) * semiAxes[1], w * semiAxes[1] + (1.0 - w) * semiAxes[0]};
}

/** The number of steps between `count` grid lines; it passes through float, like the indices. */
double stepsBetween(int count) {
    return static_cast<double>(static_cast<float>(count - 1));
}

Column columnAt(int index, const HyperboloidSurface::Parameters& parameters) {
    const double doubledIndex = 2.0 * static_cast<double>(static_cast<float>(index));
    const auto theta =
        static_cast<float>(doubledIndex * Constants::pi / stepsBetween(parameters.grid.columns));
    return {std::cos(theta), static_cast<double>(std::sin(theta)) * parameters.semiAxes[2]};
}

Row rowAt(int index, const HyperboloidSurface::Parameters& parameters, double axisSemiAxis) {
    const double h = parameters.halfHeight;
    const auto t = static_cast<float>(2.0 * h * index / stepsBetween(parameters.grid.rows) - h);
    return {std::sqrt(static_cast<double>(t * t) + 1.0), t * axisSemiAxis};
}

std::vector<Row> allRows(const HyperboloidSurface::Parameters& parameters, double axisSemiAxis) {
    std::vector<Row> rows;
    rows.reserve(static_cast<std::size_t>(parameters.grid.rows));
    for (int j = 0; j < parameters.grid.rows; ++j) {
        rows.push_back(rowAt(j, parameters, axisSemiAxis));
    }
    return rows;
}

/** The point of X space where a column and a row of the grid meet. */
template <bool swapAxes>
Triple canonicalPoint(const Column& column, const Row& row, double ringSemiAxis) {
    const double ringCoordinate = column.cosine * row.radius * ringSemiAxis;
    const double thirdCoordinate = column.scaledSine * row.radius;
    if constexpr (swapAxes) {
        return {ringCoordinate, row.axisCoordinate, thirdCoordinate};
    } else {
        return {row.axisCoordinate, ringCoordinate, thirdCoordinate};
    }
}

/** Fills the table with the grid points, each carried from X space by `fromX`. */
template <bool swapAxes, typename Map>
void fillColumns(const HyperboloidSurface::Parameters& parameters,
                 std::vector<FloatTriple>& vertices, Map fromX) {
    const OrderedSemiAxes semiAxes = orderSemiAxes(parameters.semiAxes, swapAxes);
    const std::vector<Row> rows = allRows(parameters, semiAxes.alongAxis);
    for (int i = 0; i < parameters.grid.columns; ++i) {
        const Column column = columnAt(i, parameters);
        FloatTriple* columnVertices = vertices.data() + parameters.grid.index(i, 0);
        for (std::size_t j = 0; j < rows.size(); ++j) {
            columnVertices[j] =
                narrowed(fromX(canonicalPoint<swapAxes>(column, rows[j], semiAxes.ring)));
        }
    }
}

/** fillColumns for the axis. */
template <typename Map>
void fillGrid(const HyperboloidSurface::Parameters& parameters, std::vector<FloatTriple>& vertices,
              Map fromX) {
    if (vertices.empty()) {
        return; // without columns, the rows could still be too many to compute
    }
    // The axis is a template argument: a choice at every vertex would keep the loop from being
    // vectorised.
    if (parameters.swapAxes) {
        fillColumns<true>(parameters, vertices, fromX);
    } else {
        fillColumns<false>(parameters, vertices, fromX);
    }
}

} // namespace

void HyperboloidSurface::generate(const Parameters& parameters,
                                  std::vector<FloatTriple>& vertices) {
    // A copy on the stack: nothing the loop writes can change the maps it applies.
    const HyperboloidSpaces spaces = parameters.spaces;
    switch (parameters.space) {
    case HyperboloidSpaces::U:
        fillGrid(parameters, vertices, [&](const Triple& x) { return spaces.uFromX(x); });
        break;
    case HyperboloidSpaces::M:
        fillGrid(parameters, vertices,
                 [&](const Triple& x) { return spaces.mFromU(spaces.uFromX(x)); });
        break;
    default:
        fillGrid(parameters, vertices, [](const Triple& x) { return x; });
    }
}
