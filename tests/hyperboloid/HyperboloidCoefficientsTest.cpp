#include "hyperboloid/HyperboloidCoefficients.h"

#include "tests/hyperboloid/ExposedHyperboloid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

namespace Coefficients = HyperboloidCoefficients;
using Triplet = std::array<double, 3>;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

Coefficients::Pnas pnasOf(const HyperboloidParameters& p) {
    return Coefficients::pnas({static_cast<float>(p.K1), static_cast<float>(p.K2),
                               static_cast<float>(p.K3), static_cast<float>(p.K13),
                               static_cast<float>(p.K23)},
                              Vecteur(p.U1, p.U2, p.U3));
}

TEST(HyperboloidCoefficients, PnasValuesOfTheStartUpParametersAreExact) {
    const Coefficients::Pnas pnas = pnasOf(startUp);
    EXPECT_EQ(pnas.a, -2.0F);
    EXPECT_EQ(pnas.b, 1.0F);
    EXPECT_EQ(pnas.c, 0.0F);
    EXPECT_EQ(pnas.d, -1.0F);
}

TEST(HyperboloidCoefficients, EveryParameterEntersItsPnasValue) {
    const Coefficients::Pnas pnas = pnasOf({3.0, 5.0, 99.0, 7.0, 11.0, 13.0, 17.0, 19.0});
    EXPECT_EQ(pnas.a, (3.0F * 13.0F + 7.0F * 19.0F) / -2.0F);
    EXPECT_EQ(pnas.b, 3.5F);
    EXPECT_EQ(pnas.c, (5.0F * 17.0F + 11.0F * 19.0F) / 2.0F);
    EXPECT_EQ(pnas.d, -5.5F);
}

TEST(HyperboloidCoefficients, PnasDenominatorsAreRoundedToFloatBeforeTheDivision) {
    // In float 1 - 1e-9 is 1, so the difference of 3 and 1e-9 keeps no trace of the small number.
    const Coefficients::Pnas pnas =
        Coefficients::pnas({3.0F, 1e-9F, 0.0F, 0.0F, 0.0F}, Vecteur(1.0 / 3.0 + 1e-12, 0.0, 0.0));
    EXPECT_EQ(pnas.a, static_cast<float>(3.0 * (1.0 / 3.0 + 1e-12) / 3.0));
}

TEST(HyperboloidCoefficients, PnasNumeratorsAreDouble) {
    // 1e8 + 1 - 1e8 needs more digits than a float has.
    const Coefficients::Pnas pnas =
        Coefficients::pnas({1.0F, 0.0F, 0.0F, 1.0F, 0.0F}, Vecteur(1e8 + 1.0, 0.0, -1e8));
    EXPECT_EQ(pnas.a, 1.0F);
}

TEST(HyperboloidCoefficients, EqualK1AndK2GiveInfinitePnasValues) {
    const Coefficients::Pnas pnas = pnasOf({1.0, 1.0, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0});
    EXPECT_TRUE(std::isinf(pnas.a));
    EXPECT_TRUE(std::isinf(pnas.b));
    EXPECT_TRUE(std::isnan(pnas.c));
    EXPECT_TRUE(std::isinf(pnas.d));
}

TEST(HyperboloidCoefficients, LambdaOfANegativeBdSwapsTheAxes) {
    const auto lambda = Coefficients::lambda({-2.0F, 1.0F, 0.0F, -1.0F});
    ASSERT_TRUE(lambda.has_value());
    EXPECT_TRUE(lambda->swapAxes);
    EXPECT_EQ(coordinates(lambda->values), (Triplet{0.25, 0.25, 1.0}));
}

TEST(HyperboloidCoefficients, LambdaOfAPositiveBdKeepsTheAxes) {
    const auto lambda = Coefficients::lambda({-2.0F, 1.0F, 0.0F, 1.0F});
    ASSERT_TRUE(lambda.has_value());
    EXPECT_FALSE(lambda->swapAxes);
    EXPECT_EQ(coordinates(lambda->values), (Triplet{0.25, 0.25, 1.0}));
}

TEST(HyperboloidCoefficients, LambdaMixesFloatAndDoubleAsItsFormulaSays) {
    const float a = 0.1F;
    const float b = 0.7F;
    const float c = 1.3F;
    const float d = -0.9F;
    const float sigma = b * c + a * d;
    const float sigmaSquared = sigma * sigma;
    const float ac = a * c;
    const auto k = static_cast<float>(ac + sigmaSquared / (double{b} * -4.0 * double{d}));
    const auto lambda = Coefficients::lambda({a, b, c, d});
    ASSERT_TRUE(lambda.has_value());
    EXPECT_EQ(lambda->values.GetCoord(0), 1.0 / (4.0 * double{k}));
    EXPECT_EQ(lambda->values.GetCoord(1), 1.0 / (4.0 * double{k}));
    const float third = (-b * d) / k;
    EXPECT_EQ(lambda->values.GetCoord(2), double{third});
}

TEST(HyperboloidCoefficients, LambdaOfAConeHasTheSignThatTheRoundingsLeave) {
    // uHat on the third axis makes b c equal to a d, and k = -(b c - a d)^2 / (4 b d) vanish.
    struct Cone {
        HyperboloidParameters p;
        bool swapAxes = false;
        int sign = 1;
    };
    for (const auto& [p, swapAxes, sign] :
         {Cone{{1.86, 3.4, 8.57, 1.06, -0.9, 0.0, 0.0, 2.79}, false, -1},
          Cone{{1.7, 2.94, 8.61, 1.08, -0.24, 0.0, 0.0, -1.7}, false, 1},
          Cone{{0.73, 3.86, 5.34, 0.22, 0.36, 0.0, 0.0, -1.19}, true, -1},
          Cone{{1.95, 2.93, 6.76, -0.5, -0.77, 0.0, 0.0, 0.51}, true, 1}}) {
        SCOPED_TRACE(testing::Message() << "uHat3 " << p.U3);
        const auto lambda = Coefficients::lambda(pnasOf(p));
        ASSERT_TRUE(lambda.has_value());
        EXPECT_EQ(lambda->swapAxes, swapAxes);
        for (const double component : coordinates(lambda->values)) {
            EXPECT_GT(sign * component, 1e5);
        }
        for (const float semiAxis : Coefficients::semiAxes(lambda->values)) {
            EXPECT_EQ(std::isnan(semiAxis), sign < 0);
        }
    }
}

TEST(HyperboloidCoefficients, SemiAxesOfAConeWithoutRoundingsAreZero) {
    for (const HyperboloidParameters& p :
         {HyperboloidParameters{1.23, 3.79, 7.92, -1.14, -0.25, 0.0, 0.0, 1.8},
          HyperboloidParameters{1.57, 3.47, 3.58, -0.95, 0.95, 0.0, 0.0, 2.42}}) {
        const auto lambda = Coefficients::lambda(pnasOf(p));
        ASSERT_TRUE(lambda.has_value());
        EXPECT_EQ(Coefficients::semiAxes(lambda->values), (std::array<float, 3>{0.0F, 0.0F, 0.0F}));
    }
}

TEST(HyperboloidCoefficients, LambdaIsMissingWhenBdOrSigmaIsZero) {
    EXPECT_FALSE(Coefficients::lambda({1.0F, 0.0F, 1.0F, 1.0F}).has_value());
    EXPECT_FALSE(Coefficients::lambda({1.0F, 1.0F, 1.0F, 0.0F}).has_value());
    EXPECT_FALSE(Coefficients::lambda({1.0F, 1.0F, 1.0F, -1.0F}).has_value());
    EXPECT_FALSE(Coefficients::lambda({0.0F, 1.0F, 0.0F, 1.0F}).has_value());
    // The product underflows to 0 although neither factor is 0.
    EXPECT_FALSE(Coefficients::lambda({1.0F, 1e-30F, 1.0F, 1e-30F}).has_value());
}

TEST(HyperboloidCoefficients, SigmaIsTheSumOfBcAndAdNotOfAcAndBd) {
    // a c + b d = 2 - 2 and b c + a d = 1 - 4
    EXPECT_TRUE(Coefficients::lambda({2.0F, 1.0F, 1.0F, -2.0F}).has_value());
    // a c + b d = 2 - 8 and b c + a d = 4 - 4
    EXPECT_FALSE(Coefficients::lambda({1.0F, 2.0F, 2.0F, -4.0F}).has_value());
}

TEST(HyperboloidCoefficients, NanCountsAsNonZeroAndDoesNotSwapTheAxes) {
    const auto lambda = Coefficients::lambda({nan, nan, 1.0F, 1.0F});
    ASSERT_TRUE(lambda.has_value());
    EXPECT_FALSE(lambda->swapAxes);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(std::isnan(lambda->values.GetCoord(i)));
    }
    EXPECT_TRUE(Coefficients::shift({nan, nan, 1.0F, 1.0F}).has_value());
}

TEST(HyperboloidCoefficients, ShiftFollowsItsFormulaInFloat) {
    const auto exact = Coefficients::shift({-2.0F, 1.0F, 0.0F, -1.0F});
    ASSERT_TRUE(exact.has_value());
    EXPECT_EQ(coordinates(*exact), (Triplet{2.0, 2.0, -1.0}));

    const float a = 0.1F;
    const float b = 0.7F;
    const float c = 1.3F;
    const float d = -0.9F;
    const auto rounded = Coefficients::shift({a, b, c, d});
    ASSERT_TRUE(rounded.has_value());
    const float third = (b * c + a * d) / (2.0F * b * d);
    EXPECT_EQ(coordinates(*rounded), (Triplet{double{-c - a}, double{c - a}, double{third}}));
}

TEST(HyperboloidCoefficients, ShiftIsMissingOnlyWhenBdIsZero) {
    EXPECT_FALSE(Coefficients::shift({1.0F, 0.0F, 1.0F, 1.0F}).has_value());
    EXPECT_FALSE(Coefficients::shift({1.0F, 1.0F, 1.0F, 0.0F}).has_value());
    const auto withoutSigma = Coefficients::shift({0.0F, 1.0F, 0.0F, -1.0F});
    ASSERT_TRUE(withoutSigma.has_value());
    EXPECT_EQ(coordinates(*withoutSigma), (Triplet{0.0, 0.0, 0.0}));
}

TEST(HyperboloidCoefficients, RotationShearsBySumAndDifference) {
    const auto rotation = entries(Coefficients::rotation(0.1F, 0.7F));
    EXPECT_EQ(rotation[0], (Triplet{1.0, 1.0, double{-0.7F - 0.1F}}));
    EXPECT_EQ(rotation[1], (Triplet{1.0, -1.0, double{0.7F - 0.1F}}));
    EXPECT_EQ(rotation[2], (Triplet{0.0, 0.0, 1.0}));
}

TEST(HyperboloidCoefficients, SymmetricMatrixHasItsZerosBesideTheFirstTwoDiagonalEntries) {
    const auto K = entries(Coefficients::symmetricMatrix(1.0, 2.0, 3.0, 13.0, 23.0));
    EXPECT_EQ(K[0], (Triplet{1.0, 0.0, 13.0}));
    EXPECT_EQ(K[1], (Triplet{0.0, 2.0, 23.0}));
    EXPECT_EQ(K[2], (Triplet{13.0, 23.0, 3.0}));
}

TEST(HyperboloidCoefficients, SemiAxesAreInverseRoots) {
    const auto semiAxes = Coefficients::semiAxes(Vecteur(0.25, 3.0, 0.0));
    EXPECT_EQ(semiAxes[0], 2.0F);
    EXPECT_EQ(semiAxes[1], static_cast<float>(std::sqrt(1.0 / 3.0)));
    EXPECT_TRUE(std::isinf(semiAxes[2]));
}

TEST(HyperboloidCoefficients, NegativeLambdaGivesANanSemiAxis) {
    const auto semiAxes = Coefficients::semiAxes(Vecteur(-1.0, 1.0, -0.25));
    EXPECT_TRUE(std::isnan(semiAxes[0]));
    EXPECT_EQ(semiAxes[1], 1.0F);
    EXPECT_TRUE(std::isnan(semiAxes[2]));
}

} // namespace
