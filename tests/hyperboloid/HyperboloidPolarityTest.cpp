#include "hyperboloid/HyperboloidPolarity.h"

#include "tests/hyperboloid/ExposedHyperboloid.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <utility>

namespace {

/** Surfaces along either axis, with three different semi-axes. */
constexpr std::array<HyperboloidParameters, 2> surfaces{{
    {0.9, 1.8, 0.5, -0.6, 0.35, -1.0, 0.4, 0.7},
    {1.3, 2.9, 0.1, -0.45, -0.8, 0.2, 0.9, -0.6},
}};

HyperboloidSpaces spacesOf(const ExposedHyperboloid& model) {
    return {model.rotationMatrix, model.shift, model.KMatrix, model.U};
}

SbVec4d homogeneous(const Triple& p, double weight) {
    return {p.x, p.y, p.z, weight};
}

/** A model's surface in X space, written out from its semi-axes. */
class Quadric {
public:
    explicit Quadric(const ExposedHyperboloid& model) {
        for (std::size_t i = 0; i < 3; ++i) {
            const double semiAxis = model.semiAxis.at(i);
            const bool isAxis = i == (model.swapAxes ? 1U : 0U);
            factors.at(i) = (isAxis ? -1.0 : 1.0) / (semiAxis * semiAxis);
        }
    }

    /** Where the line place + t direction meets it: the two t in ascending order, if there are. */
    std::optional<std::pair<double, double>> meets(const Triple& place,
                                                   const Triple& direction) const {
        const double square = product(direction, direction);
        const double half = product(place, direction) / square;
        const double root = half * half - (product(place, place) - 1) / square;
        if (root <= 0) {
            return std::nullopt;
        }
        return std::make_pair(-half - std::sqrt(root), -half + std::sqrt(root));
    }

private:
    double product(const Triple& p, const Triple& q) const {
        return factors[0] * p.x * q.x + factors[1] * p.y * q.y + factors[2] * p.z * q.z;
    }

    std::array<double, 3> factors{};
};

/** Random places and directions in X space. */
class Lines {
public:
    Triple place() { return {7.3 * number(), 6.1 * number(), 8.7 * number()}; }
    Triple direction() { return {number(), number(), number()}; }

private:
    double number() {
        return static_cast<double>(random()) / static_cast<double>(std::mt19937::max()) * 2 - 1;
    }
    std::mt19937 random{20011};
};

class HyperboloidPolarityIn : public testing::TestWithParam<std::tuple<std::size_t, int>> {
protected:
    Triple toSpace(const Triple& x) const {
        const HyperboloidSpaces spaces = spacesOf(model);
        return spaces.fromU(spaces.uFromX(x), space);
    }

    /** A line place + t direction of X space. */
    struct Line {
        Triple place;
        Triple direction;
    };
    /** Where such a line meets the two walls, as t, and where the plane is to cut it. */
    struct Cuts {
        double near;
        double plane;
        double far;
    };

    void expectCuts(const SbVec4d& plane, const Line& line, const Cuts& cuts) const {
        const auto valueAt = [&](double t) {
            return plane.dot(homogeneous(toSpace(line.place + t * line.direction), 1));
        };
        const double near = valueAt(cuts.near);
        const double far = valueAt(cuts.far);
        EXPECT_GT(near, 0);
        EXPECT_LT(far, 0);
        EXPECT_NEAR(valueAt(cuts.plane), 0, 1e-6 * (near - far));
    }

    const int space = std::get<1>(GetParam());
    const ExposedHyperboloid model{surfaces.at(std::get<0>(GetParam())), space};
    const HyperboloidPolarity polarity{model.semiAxis, model.swapAxes, spacesOf(model), space};
    Lines lines;
};

} // namespace

TEST_P(HyperboloidPolarityIn, ItsPlaneCutsEachLineOfSightAtTheHarmonicMean) {
    int seen = 0;
    for (int i = 0; i < 2000; ++i) {
        const Triple eye = lines.place();
        const Triple direction = lines.direction();
        const auto met = Quadric(model).meets(eye, direction);
        if (!met || met->first <= 0) {
            continue;
        }
        ++seen;
        const SbVec4d plane = polarity.planeBeforeFarWall(homogeneous(toSpace(eye), 1));
        const double mean = 2 * met->first * met->second / (met->first + met->second);
        expectCuts(plane, {eye, direction}, {met->first, mean, met->second});
    }
    EXPECT_GT(seen, 100);
}

TEST_P(HyperboloidPolarityIn, ItsPlaneHalvesParallelLinesOfSight) {
    int seen = 0;
    for (int i = 0; i < 2000; ++i) {
        const Triple place = lines.place();
        const Triple towardsEye = lines.direction();
        const auto met = Quadric(model).meets(place, towardsEye);
        if (!met) {
            continue;
        }
        const SbVec4d plane =
            polarity.planeBeforeFarWall(homogeneous(toSpace(towardsEye) - toSpace({0, 0, 0}), 0));
        ++seen;
        const double middle = (met->first + met->second) / 2;
        expectCuts(plane, {place, towardsEye}, {met->second, middle, met->first});
    }
    EXPECT_GT(seen, 100);
}

INSTANTIATE_TEST_SUITE_P(BothAxes, HyperboloidPolarityIn,
                         testing::Combine(testing::Values(0U, 1U), testing::Range(0, 3)));

TEST(HyperboloidPolarity, WithoutASurfaceAllIsNear) {
    const SbVec4d nothing(0, 0, 0, 0);
    const SbVec4d eye(3.7, -2.1, 1.3, 1);
    EXPECT_EQ(HyperboloidPolarity().planeBeforeFarWall(eye), nothing);
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const ExposedHyperboloid model(surfaces[0], Hyperboloid::MSPACE);
    for (const Matrice& K : {Matrice(0.0, 0.0, 0.0), Matrice(1.7, infinity, 0.6)}) {
        const HyperboloidSpaces spaces(model.rotationMatrix, model.shift, K, model.U);
        const HyperboloidPolarity polarity(model.semiAxis, model.swapAxes, spaces,
                                           Hyperboloid::MSPACE);
        EXPECT_EQ(polarity.planeBeforeFarWall(eye), nothing);
    }
}
