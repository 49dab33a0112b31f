#pragma once

#include "hyperboloid/Hyperboloid.h"

#include <array>
#include <vector>

/** a = -2, b = 1, c = 0, d = -1: b d < 0, swapped axes. */
constexpr HyperboloidParameters startUp{1.0, 1.5, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0};
/** a = -2, b = 1, c = 0, d = 1: b d > 0, axes not swapped. */
constexpr HyperboloidParameters unswapped{1.0, 1.5, 1.0, 0.5, -0.5, 1.0, 0.0, 0.0};
/** K13 = 0, so b = 0. */
constexpr HyperboloidParameters withoutK13{1.0, 1.5, 1.0, 0.0, 0.5, 1.0, 0.0, 0.0};
/** K23 = 0, so d = 0. */
constexpr HyperboloidParameters withoutK23{1.0, 1.5, 1.0, 0.5, 0.0, 1.0, 0.0, 0.0};
/** a = c = 0, so b c + a d = 0 although b d is not. */
constexpr HyperboloidParameters withoutUHat{1.0, 1.5, 1.0, 0.5, 0.5, 0.0, 0.0, 0.0};

/** A hyperboloid whose fields the tests may read and write, as a frame does. */
class ExposedHyperboloid : public Hyperboloid {
public:
    ExposedHyperboloid(const HyperboloidParameters& p, int spaceIndex)
        : Hyperboloid(static_cast<float>(p.K1), static_cast<float>(p.K2), static_cast<float>(p.K3),
                      static_cast<float>(p.K13), static_cast<float>(p.K23),
                      static_cast<float>(p.U1), static_cast<float>(p.U2), static_cast<float>(p.U3),
                      spaceIndex) {}

    /** New parameters on a grid of its own, without new tables. */
    void setGrid(const HyperboloidParameters& p, int columns, int rows) {
        HyperboloidParameters set = p;
        set.horizontalPrecision = columns;
        set.verticalPrecision = rows;
        setParameters(set);
    }

    /** New parameters, grid, tables and points, as the frame makes them. */
    void regenerate(const HyperboloidParameters& p, int columns, int rows) {
        setGrid(p, columns, rows);
        init_tables();
        generateHyperboloidPoints(true, true);
    }

    using Hyperboloid::a;
    using Hyperboloid::b;
    using Hyperboloid::c;
    using Hyperboloid::colors;
    using Hyperboloid::d;
    using Hyperboloid::energies;
    using Hyperboloid::K;
    using Hyperboloid::KMatrix;
    using Hyperboloid::lambda;
    using Hyperboloid::lightness;
    using Hyperboloid::material;
    using Hyperboloid::rotationMatrix;
    using Hyperboloid::saturation;
    using Hyperboloid::semiAxis;
    using Hyperboloid::shift;
    using Hyperboloid::sphereGroup;
    using Hyperboloid::swapAxes;
    using Hyperboloid::tRange;
    using Hyperboloid::transparency;
    using Hyperboloid::U;
    using Hyperboloid::vertices;
};

/** All numbers of a table of triples, one after the other. */
inline std::vector<float> floatsOf(const std::vector<FloatTriple>& table) {
    std::vector<float> floats;
    for (const FloatTriple& triple : table) {
        floats.insert(floats.end(), {triple.x, triple.y, triple.z});
    }
    return floats;
}

/** The coordinates of a vector of dimension 3. */
inline std::array<double, 3> coordinates(const Vecteur& vector) {
    return {vector.GetCoord(0), vector.GetCoord(1), vector.GetCoord(2)};
}

/** The entries of a 3x3 matrix, row by row. */
inline std::array<std::array<double, 3>, 3> entries(Matrice matrix) {
    return {coordinates(matrix[0]), coordinates(matrix[1]), coordinates(matrix[2])};
}
