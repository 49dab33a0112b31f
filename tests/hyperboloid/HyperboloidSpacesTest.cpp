#include "hyperboloid/HyperboloidSpaces.h"

#include "tests/hyperboloid/ExposedHyperboloid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Point = std::array<double, 3>;

/** Parameters with both signs of b d, none of them special. */
constexpr HyperboloidParameters ordinaryParameters[] = {
    startUp,
    unswapped,
    {2.0, 0.7, 1.2, 0.3, 0.4, 0.5, -0.8, 0.3},
    {0.9, 1.8, 0.5, -0.6, 0.35, -1.0, 0.4, 0.7},
    {1.3, 2.9, 0.1, -0.45, -0.8, 0.2, 0.9, -0.6},
    {3.0, 1.0, 2.0, 0.9, -0.7, 0.3, 0.3, 0.9},
};

Point vertexOf(const ExposedHyperboloid& hyperboloid, int k) {
    return {hyperboloid.getVertex(k, 0), hyperboloid.getVertex(k, 1), hyperboloid.getVertex(k, 2)};
}

double length(const Point& p) {
    return std::hypot(p[0], p[1], p[2]);
}

/** m = K (u - uHat), written out for the five entries of K. */
Point mOf(const HyperboloidParameters& p, const Point& u) {
    const Point w{u[0] - p.U1, u[1] - p.U2, u[2] - p.U3};
    return {p.K1 * w[0] + p.K13 * w[2], p.K2 * w[1] + p.K23 * w[2],
            p.K13 * w[0] + p.K23 * w[1] + p.K3 * w[2]};
}

/** x = R u + s, written out. */
Point xOf(const ExposedHyperboloid& h, const Point& u) {
    const double b = h.b;
    const double d = h.d;
    return {u[0] + u[1] - (b + d) * u[2] + h.shift.GetCoord(0),
            u[0] - u[1] + (d - b) * u[2] + h.shift.GetCoord(1), u[2] + h.shift.GetCoord(2)};
}

/** The largest entry of K. */
double size(const HyperboloidParameters& p) {
    return std::max(
        {std::fabs(p.K1), std::fabs(p.K2), std::fabs(p.K3), std::fabs(p.K13), std::fabs(p.K23)});
}

/** Single precision with room for the few roundings of the semi-axes and the point itself. */
constexpr double relativeBound = 16.0 * std::numeric_limits<float>::epsilon();

TEST(HyperboloidSpaces, VerticesOfUSpaceLieOnTheQuadric) {
    for (const HyperboloidParameters& parameters : ordinaryParameters) {
        const ExposedHyperboloid hyperboloid(parameters, Hyperboloid::USPACE);
        double largest = 0.0;
        for (int k = 0; k < 64 * 64; ++k) {
            largest = std::max(largest, length(vertexOf(hyperboloid, k)));
        }
        const double bound = relativeBound * size(parameters) * largest * largest;
        for (int k = 0; k < 64 * 64; ++k) {
            const Point u = vertexOf(hyperboloid, k);
            const Point m = mOf(parameters, u);
            EXPECT_NEAR(m[0] * u[1] - m[1] * u[0], 0.0, bound) << "vertex " << k;
        }
    }
}

TEST(HyperboloidSpaces, TheSameVertexOfAllSpacesIsTheSamePoint) {
    for (const HyperboloidParameters& parameters : ordinaryParameters) {
        const ExposedHyperboloid U(parameters, Hyperboloid::USPACE);
        const ExposedHyperboloid X(parameters, Hyperboloid::XSPACE);
        const ExposedHyperboloid M(parameters, Hyperboloid::MSPACE);
        for (int k = 0; k < 64 * 64; ++k) {
            const Point u = vertexOf(U, k);
            const Point x = vertexOf(X, k);
            const Point m = vertexOf(M, k);
            const Point expectedX = xOf(U, u);
            const Point expectedM = mOf(parameters, u);
            const double reach = 1.0 + length(u) + length(x) + length(m);
            for (std::size_t i = 0; i < 3; ++i) {
                EXPECT_NEAR(x[i], expectedX[i], relativeBound * reach);
                EXPECT_NEAR(m[i], expectedM[i], relativeBound * reach);
            }
        }
    }
}

TEST(HyperboloidSpaces, CanonicalPointsSatisfyTheEquationOfTheirHyperboloid) {
    for (const HyperboloidParameters& parameters : ordinaryParameters) {
        const ExposedHyperboloid hyperboloid(parameters, Hyperboloid::XSPACE);
        const std::size_t axis = hyperboloid.swapAxes ? 1 : 0;
        for (int k = 0; k < 64 * 64; ++k) {
            const Point x = vertexOf(hyperboloid, k);
            Point square{};
            for (std::size_t i = 0; i < 3; ++i) {
                square[i] = std::pow(x[i] / hyperboloid.semiAxis[i], 2);
            }
            const double sum = square[0] + square[1] + square[2] - 2.0 * square[axis];
            EXPECT_NEAR(sum, 1.0, relativeBound * (1.0 + square[axis]));
        }
    }
}

TEST(HyperboloidSpaces, XAndUAreInverseMaps) {
    const HyperboloidSpaces spaces(Matrice(1.0, 1.0, 0.5, 1.0, -1.0, -2.5, 0.0, 0.0, 1.0),
                                   Vecteur(2.0, 3.0, -1.0), Matrice(), Vecteur(3));
    const Triple u = spaces.uFromX(spaces.xFromU({0.3, -0.7, 1.9}));
    EXPECT_NEAR(u.x, 0.3, 1e-14);
    EXPECT_NEAR(u.y, -0.7, 1e-14);
    EXPECT_NEAR(u.z, 1.9, 1e-14);
}

TEST(HyperboloidSpaces, ASingularRotationGivesNoNumbersAndNoError) {
    const HyperboloidSpaces spaces(Matrice(0.0, 0.0, 0.0), Vecteur(3), Matrice(), Vecteur(3));
    EXPECT_TRUE(std::isnan(spaces.uFromX({1.0, 1.0, 1.0}).x));
}

TEST(HyperboloidSpaces, PointsStayInAnUnknownSpace) {
    const HyperboloidSpaces spaces(Matrice(), Vecteur(1.0, 1.0, 1.0), Matrice(2.0, 2.0, 2.0),
                                   Vecteur(3));
    EXPECT_EQ(spaces.fromU({5.0, 6.0, 7.0}, 3).y, 6.0);
    EXPECT_EQ(spaces.fromU({5.0, 6.0, 7.0}, HyperboloidSpaces::U).y, 6.0);
    EXPECT_EQ(spaces.fromU({5.0, 6.0, 7.0}, HyperboloidSpaces::X).y, 7.0);
    EXPECT_EQ(spaces.fromU({5.0, 6.0, 7.0}, HyperboloidSpaces::M).y, 12.0);
}

TEST(HyperboloidSpaces, DotProductsStartAtPositiveZero) {
    const double sum = dot({-0.0, -0.0, -0.0}, {1.0, 1.0, 1.0});
    EXPECT_EQ(sum, 0.0);
    EXPECT_FALSE(std::signbit(sum));
}

TEST(HyperboloidSpaces, AVectorWithTooFewCoordinatesIsReported) {
    EXPECT_THROW(toTriple(Vecteur(2)), std::string);
}

} // namespace
