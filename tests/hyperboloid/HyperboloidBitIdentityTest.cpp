#include "tests/hyperboloid/ExposedHyperboloid.h"
#include "tests/reference/PlainHyperboloid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace {

std::uint32_t bitsOf(float value) {
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/** Two floats of the same bits; all NaNs count as one value, whatever their sign and payload. */
bool sameBits(float left, float right) {
    return (std::isnan(left) && std::isnan(right)) || bitsOf(left) == bitsOf(right);
}

void expectSameTable(const std::vector<float>& model, const std::vector<float>& plain,
                     const std::string& what) {
    ASSERT_EQ(model.size(), plain.size()) << what;
    for (std::size_t i = 0; i < model.size(); ++i) {
        ASSERT_TRUE(sameBits(model[i], plain[i]))
            << what << " entry " << i << ": " << model[i] << " instead of " << plain[i];
    }
}

void expectSameBits(const HyperboloidParameters& p, int space, int columns, int rows,
                    double saturation = 0.8, double lightness = 0.5) {
    testing::internal::CaptureStderr();
    ExposedHyperboloid model(p, space);
    model.saturation = saturation;
    model.lightness = lightness;
    // Axes keep their earlier order in degenerate cases; the plain ones begin unswapped.
    model.swapAxes = false;
    model.regenerate(p, columns, rows);
    testing::internal::GetCapturedStderr();

    PlainHyperboloid plain({p.K1, p.K2, p.K3, p.K13, p.K23, p.U1, p.U2, p.U3, space,
                            static_cast<unsigned int>(columns), static_cast<unsigned int>(rows),
                            saturation, lightness});
    plain.generate();

    const std::string where = " in space " + std::to_string(space) + ", grid " +
                              std::to_string(columns) + " x " + std::to_string(rows);
    EXPECT_EQ(model.swapAxes, plain.swapAxes) << where;
    for (int i = 0; i < 3; ++i) {
        const auto component = static_cast<std::size_t>(i);
        EXPECT_TRUE(sameBits(model.semiAxis[component], plain.semiAxis[i])) << where;
    }
    expectSameTable(floatsOf(model.vertices), plain.vertexTable(), "vertices" + where);
    expectSameTable(model.energies, plain.energyTable(), "energies" + where);
    expectSameTable(floatsOf(model.colors), plain.colorTable(), "colours" + where);
}

void expectSameBitsInAllSpaces(const HyperboloidParameters& p, int columns, int rows) {
    for (int space = 0; space < 3; ++space) {
        expectSameBits(p, space, columns, rows);
    }
}

TEST(HyperboloidBits, EqualThePlainComputationOnEveryGridShape) {
    const int shapes[][2] = {{0, 0}, {0, 5}, {5, 0},   {1, 1},   {1, 7},   {7, 1},   {2, 2}, {2, 3},
                             {3, 2}, {4, 5}, {5, 500}, {500, 5}, {64, 64}, {33, 17}, {10, 9}};
    for (const HyperboloidParameters& parameters : {startUp, unswapped}) {
        for (const auto& [columns, rows] : shapes) {
            expectSameBitsInAllSpaces(parameters, columns, rows);
        }
    }
}

TEST(HyperboloidBits, EqualThePlainComputationOnTheFinestGrid) {
    expectSameBitsInAllSpaces({0.9, 1.8, 0.5, -0.6, 0.35, -1.0, 0.4, 0.7}, 500, 500);
}

TEST(HyperboloidBits, EqualThePlainComputationForManyParameters) {
    std::mt19937 random(20);
    std::uniform_real_distribution<double> entry(-3.0, 3.0);
    int swapped = 0;
    constexpr int sets = 200;
    for (int i = 0; i < sets; ++i) {
        const HyperboloidParameters p{entry(random), entry(random), entry(random), entry(random),
                                      entry(random), entry(random), entry(random), entry(random)};
        expectSameBitsInAllSpaces(p, 19, 13);
        swapped += p.K13 * p.K23 > 0.0 ? 1 : 0;
    }
    EXPECT_GT(swapped, sets / 4);
    EXPECT_LT(swapped, sets * 3 / 4);
}

TEST(HyperboloidBits, EqualThePlainComputationForDegenerateParameters) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const HyperboloidParameters degenerate[] = {
        withoutK13,
        withoutK23,
        withoutUHat,
        {1.0, 1.0, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0},
        {1.0, 1.0, 1.0, 0.0, 0.0, 1.0, 0.0, 0.0},
        {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0},
        {1.0, 1.5, infinity, 0.5, 0.5, 1.0, 0.0, 0.0},
        {1.0, 1.5, 1.0, infinity, 0.5, 1.0, 0.0, 0.0},
        {1.0, 1.5, 1.0, 0.5, 0.5, nan, 0.0, 0.0},
        {nan, 1.5, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0},
        {1.0, 1.5, 1.0, 1e-30, 1e-30, 1.0, 0.0, 0.0},
        {1.0, 1.5, 1.0, 1e-20, 1e-18, 1.0, 0.0, 0.0},
        {1e20, 1.5, 1e20, 1e19, 1e19, 1e10, 1e10, 1e10},
        // a d = b c: k is 0 or next to it, and the semi-axes vanish.
        {1.0, 2.0, 1.0, 0.5, 0.5, 2.0, -1.0, 0.0},
        {1.0, 2.0, 1.0, 0.5, 0.5, 2.0, 1.0, 0.0},
    };
    for (const HyperboloidParameters& parameters : degenerate) {
        expectSameBitsInAllSpaces(parameters, 9, 7);
    }
}

TEST(HyperboloidBits, EqualThePlainColoursForEverySaturationAndLightness) {
    for (const double saturation : {0.0, 0.01, 0.37, 0.8, 1.0}) {
        for (const double lightness : {0.0, 0.2, 0.49, 0.5, 0.51, 0.93, 1.0}) {
            expectSameBits(startUp, Hyperboloid::USPACE, 40, 40, saturation, lightness);
        }
    }
}

TEST(HyperboloidBits, StayTheSameWhenTheGridShrinksAndGrows) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const std::vector<float> first = floatsOf(hyperboloid.vertices);
    const std::vector<float> firstColors = floatsOf(hyperboloid.colors);
    hyperboloid.regenerate(unswapped, 5, 9);
    hyperboloid.regenerate(startUp, 200, 90);
    hyperboloid.regenerate(startUp, 64, 64);
    expectSameTable(floatsOf(hyperboloid.vertices), first, "vertices");
    expectSameTable(floatsOf(hyperboloid.colors), firstColors, "colours");
}

} // namespace
