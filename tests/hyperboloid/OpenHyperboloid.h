#pragma once

#include "hyperboloid/Hyperboloid.h"

#include <array>

/** The parameters of a hyperboloid's matrix K and of its point uHat. */
struct KAndUHat {
    double K1, K2, K3, K13, K23;
    double U1, U2, U3;
};

/** a = -2, b = 1, c = 0, d = -1: b d < 0, swapped axes. */
constexpr KAndUHat startUp{1.0, 1.5, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0};
/** a = -2, b = 1, c = 0, d = 1: b d > 0, axes not swapped. */
constexpr KAndUHat unswapped{1.0, 1.5, 1.0, 0.5, -0.5, 1.0, 0.0, 0.0};
/** K13 = 0, so b = 0. */
constexpr KAndUHat withoutK13{1.0, 1.5, 1.0, 0.0, 0.5, 1.0, 0.0, 0.0};
/** K23 = 0, so d = 0. */
constexpr KAndUHat withoutK23{1.0, 1.5, 1.0, 0.5, 0.0, 1.0, 0.0, 0.0};
/** a = c = 0, so b c + a d = 0 although b d is not. */
constexpr KAndUHat withoutUHat{1.0, 1.5, 1.0, 0.5, 0.5, 0.0, 0.0, 0.0};

/** A hyperboloid whose fields the tests may read and write, as a frame does. */
class OpenHyperboloid : public Hyperboloid {
public:
    OpenHyperboloid(const KAndUHat& p, int spaceIndex)
        : Hyperboloid(static_cast<float>(p.K1), static_cast<float>(p.K2), static_cast<float>(p.K3),
                      static_cast<float>(p.K13), static_cast<float>(p.K23),
                      static_cast<float>(p.U1), static_cast<float>(p.U2), static_cast<float>(p.U3),
                      spaceIndex) {}

    /** New parameters and grid without new tables; everything else as at construction. */
    void setGrid(const KAndUHat& p, int columns, int rows) {
        set_parameters(p.K1, p.K2, p.K3, p.K13, p.K23, p.U1, p.U2, p.U3, columns, rows, 0.3, 7.0,
                       7.0, 0.02, 0.03);
    }

    /** New parameters, grid, tables and points, as the frame makes them. */
    void regenerate(const KAndUHat& p, int columns, int rows) {
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

/** The coordinates of a vector of dimension 3. */
inline std::array<double, 3> coordinates(const Vecteur& vector) {
    return {vector.GetCoord(0), vector.GetCoord(1), vector.GetCoord(2)};
}

/** The entries of a 3x3 matrix, row by row. */
inline std::array<std::array<double, 3>, 3> entries(Matrice matrix) {
    return {coordinates(matrix[0]), coordinates(matrix[1]), coordinates(matrix[2])};
}
