#include "math/Vecteur.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/** The text that an operation throws; empty when it throws none. */
template <typename Operation>
std::string thrownBy(Operation operation) {
    try {
        operation();
    } catch (const std::string& text) {
        return text;
    }
    return {};
}

std::string printed(const Vecteur& v) {
    std::ostringstream out;
    out << v;
    return out.str();
}

Vecteur counting(int n) {
    Vecteur v(0);
    for (int i = 1; i <= n; ++i) {
        v.ajoute(i);
    }
    return v;
}

} // namespace

TEST(Vecteur, OfADimensionIsZero) {
    Vecteur v(4);
    EXPECT_EQ(v.size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(v[i], 0.0);
    }
}

TEST(Vecteur, TakesThreeCoordinates) {
    const Vecteur v(1, 2, 3);
    EXPECT_EQ(v.size(), 3);
    EXPECT_EQ(v.GetCoord(0), 1);
    EXPECT_EQ(v.GetCoord(1), 2);
    EXPECT_EQ(v.GetCoord(2), 3);
}

TEST(Vecteur, TakesTheFirstValuesOfAnArray) {
    const double values[] = {5, 6, 7, 8};
    const Vecteur v(values, 3);
    EXPECT_EQ(v, Vecteur(5, 6, 7));
    EXPECT_EQ(Vecteur(values, 0).size(), 0);
}

TEST(Vecteur, CopiesAreIndependent) {
    const Vecteur original(1, 2, 3);
    Vecteur copy(original);
    copy.SetCoord(0) = 9;
    EXPECT_EQ(original, Vecteur(1, 2, 3));
    copy = original;
    EXPECT_EQ(copy, original);
}

TEST(Vecteur, IndexBeyondTheDimensionThrows) {
    for (int n = 0; n < 5; ++n) {
        Vecteur v(n);
        EXPECT_EQ(thrownBy([&] { v[n]; }), "Erreur surcharge []: dimension depassee.");
        EXPECT_EQ(thrownBy([&] { v[n + 7]; }), "Erreur surcharge []: dimension depassee.");
        if (n > 0) {
            EXPECT_EQ(thrownBy([&] { v[n - 1] = 1; }), "");
            EXPECT_EQ(v.GetCoord(n - 1), 1);
        }
    }
}

TEST(Vecteur, SetVectTakesOverCoordinatesAndDimension) {
    Vecteur v(1, 2, 3);
    v.SetVect(counting(5));
    EXPECT_EQ(v, counting(5));
    v.SetVect(v);
    EXPECT_EQ(v, counting(5));
}

TEST(Vecteur, GrowsAndIsEmptied) {
    Vecteur v(0);
    v.ajoute(4);
    v.ajoute(5);
    EXPECT_EQ(v.size(), 2);
    EXPECT_EQ(v.GetCoord(1), 5);
    v.Efface();
    EXPECT_EQ(v.size(), 0);
}

TEST(Vecteur, DotProductSumsInOrder) {
    EXPECT_EQ(Vecteur(1, 2, 3) * Vecteur(4, -5, 6), 12);
    EXPECT_EQ(Vecteur(0) * Vecteur(0), 0.0);
    // In another order the large terms would not swallow the small one.
    EXPECT_EQ(Vecteur(1, 1e20, -1e20) * Vecteur(1, 1, 1), 0);
    EXPECT_EQ(Vecteur(1e20, -1e20, 1) * Vecteur(1, 1, 1), 1);
    EXPECT_FALSE(std::signbit(Vecteur(-0.0, 0, 0) * Vecteur(1, 0, 0)));
}

TEST(Vecteur, CrossProductIsPerpendicular) {
    EXPECT_EQ(Vecteur(1, 0, 0) ^ Vecteur(0, 1, 0), Vecteur(0, 0, 1));
    EXPECT_EQ(Vecteur(0, 1, 0) ^ Vecteur(1, 0, 0), Vecteur(0, 0, -1));
    EXPECT_EQ(Vecteur(1, 2, 3) ^ Vecteur(4, 5, 6), Vecteur(-3, 6, -3));
}

TEST(Vecteur, CrossProductOfTheFirstTwoAxesHasNoNegativeZeros) {
    const Vecteur product = Vecteur(1, 0, 0) ^ Vecteur(0, 1, 0);
    EXPECT_FALSE(std::signbit(product.GetCoord(0)));
    EXPECT_FALSE(std::signbit(product.GetCoord(1)));
}

TEST(Vecteur, SumAndDifferenceLeaveTheOperands) {
    const Vecteur a(1, 2, 3);
    const Vecteur b(10, 20, 30);
    EXPECT_EQ(a + b, Vecteur(11, 22, 33));
    EXPECT_EQ(b - a, Vecteur(9, 18, 27));
    EXPECT_EQ(a, Vecteur(1, 2, 3));
    EXPECT_EQ(b, Vecteur(10, 20, 30));
}

TEST(Vecteur, CompoundOperatorsChangeAndReturnTheVector) {
    Vecteur v(1, 2, 3);
    EXPECT_EQ(&(v += Vecteur(1, 1, 1)), &v);
    EXPECT_EQ(v, Vecteur(2, 3, 4));
    EXPECT_EQ(&(v -= Vecteur(2, 2, 2)), &v);
    EXPECT_EQ(v, Vecteur(0, 1, 2));
    EXPECT_EQ(&(v *= 3), &v);
    EXPECT_EQ(v, Vecteur(0, 3, 6));
    v += v;
    EXPECT_EQ(v, Vecteur(0, 6, 12));
    const Vecteur& itself = v;
    v -= itself;
    EXPECT_EQ(v, Vecteur(0, 0, 0));
}

TEST(Vecteur, ScalesByOneOfItsOwnCoordinates) {
    Vecteur v(2, 3, 4);
    v *= v[0];
    EXPECT_EQ(v, Vecteur(4, 6, 8));
}

TEST(Vecteur, ScalesFromBothSides) {
    Vecteur v(1, 2, 3);
    EXPECT_EQ(v * 2.0, Vecteur(2, 4, 6));
    EXPECT_EQ(2.0 * v, Vecteur(2, 4, 6));
    EXPECT_EQ(v, Vecteur(1, 2, 3));
}

TEST(Vecteur, OppositeLeavesTheVector) {
    const Vecteur v(1, -2, 3);
    EXPECT_EQ(v.oppose(), Vecteur(-1, 2, -3));
    EXPECT_EQ(v, Vecteur(1, -2, 3));
}

TEST(Vecteur, OppositeOfZeroHasTheOtherSign) {
    const Vecteur opposite = Vecteur(0.0, -0.0, 1).oppose();
    EXPECT_TRUE(std::signbit(opposite.GetCoord(0)));
    EXPECT_FALSE(std::signbit(opposite.GetCoord(1)));
}

TEST(Vecteur, ModuleIsTheNorm) {
    EXPECT_EQ(Vecteur(3, 4, 0).Module(), 5);
    EXPECT_EQ(Vecteur(0).Module(), 0.0);
    EXPECT_EQ(Vecteur(0.1, 0.37, -2.9).Module(),
              std::sqrt((0.1 * 0.1 + 0.37 * 0.37) + -2.9 * -2.9));
}

TEST(Vecteur, NormalisationGivesLengthOne) {
    Vecteur v(3, 4, 0);
    v.Normalisation();
    EXPECT_EQ(v, Vecteur(0.6, 0.8, 0));
    Vecteur empty(0);
    empty.Normalisation();
    EXPECT_EQ(empty.size(), 0);
}

TEST(Vecteur, NormalisationOfZeroIsNaN) {
    Vecteur v(3);
    v.Normalisation();
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(std::isnan(v[i]));
    }
}

TEST(Vecteur, AngleIsInRadians) {
    EXPECT_DOUBLE_EQ(Vecteur(1, 0, 0).Angle(Vecteur(0, 2, 0)), std::acos(0.0));
    EXPECT_DOUBLE_EQ(Vecteur(1, 0, 0).Angle(Vecteur(-3, 0, 0)), std::acos(-1.0));
    EXPECT_EQ(Vecteur(1, 0, 0).Angle(Vecteur(1, 0, 0)), 0);
    EXPECT_TRUE(std::isnan(Vecteur(1, 0, 0).Angle(Vecteur(3))));
}

TEST(Vecteur, AngleIsNotClamped) {
    int notClamped = 0;
    for (int i = 1; i < 200; ++i) {
        const Vecteur v(0.1 * i, 0.37, 1.0 / i);
        const double cosine = (v * v) / (std::sqrt(v * v) * std::sqrt(v * v));
        const double angle = v.Angle(v);
        EXPECT_EQ(std::isnan(angle), cosine > 1);
        EXPECT_TRUE(std::isnan(angle) || angle < 1e-7);
        notClamped += std::isnan(angle) ? 1 : 0;
    }
    EXPECT_GT(notClamped, 0);
}

TEST(Vecteur, EqualityNeedsDimensionAndCoordinates) {
    EXPECT_TRUE(Vecteur(1, 2, 3) == Vecteur(1, 2, 3));
    EXPECT_FALSE(Vecteur(1, 2, 3) != Vecteur(1, 2, 3));
    EXPECT_FALSE(counting(2) == counting(3));
    EXPECT_TRUE(counting(2) != counting(3));
    EXPECT_FALSE(Vecteur(1, 2, 3) == Vecteur(1, 2, 4));
    EXPECT_TRUE(Vecteur(0.0, 0, 0) == Vecteur(-0.0, 0, 0));
    EXPECT_TRUE(Vecteur(0) == Vecteur(0));
}

TEST(Vecteur, NaNEqualsNothing) {
    const Vecteur v(1, notANumber, 3);
    EXPECT_FALSE(v == v);
    EXPECT_TRUE(v != v);
}

TEST(Vecteur, UnequalDimensionsThrowTheirTexts) {
    Vecteur two = counting(2);
    const Vecteur three = counting(3);
    EXPECT_EQ(thrownBy([&] { two* three; }), "Produit Scalaire Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { two ^ three; }), "Produit Vectoriel Erreur: dimension!=3.");
    EXPECT_EQ(thrownBy([&] { three ^ two; }), "Produit Vectoriel Erreur: dimension!=3.");
    EXPECT_EQ(thrownBy([&] { two ^ two; }), "Produit Vectoriel Erreur: dimension!=3.");
    EXPECT_EQ(thrownBy([&] { two + three; }), "Somme de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { two += three; }), "Somme de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { two - three; }),
              "Difference de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { two -= three; }),
              "Difference de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { two.Angle(three); }), "Angle Erreur: dimensions pas egales.");
    EXPECT_EQ(two, counting(2));
}

TEST(Vecteur, LongerOneOnTheLeftThrowsTheSameTexts) {
    const Vecteur two = counting(2);
    Vecteur three = counting(3);
    EXPECT_EQ(thrownBy([&] { three* two; }), "Produit Scalaire Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { three + two; }), "Somme de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { three += two; }), "Somme de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { three - two; }),
              "Difference de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { three -= two; }),
              "Difference de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { three.Angle(two); }), "Angle Erreur: dimensions pas egales.");
    EXPECT_EQ(three, counting(3));
}

TEST(Vecteur, PrintsItsCoordinates) {
    EXPECT_EQ(printed(Vecteur(0)), "()");
    EXPECT_EQ(printed(counting(1)), " ( 1 )");
    EXPECT_EQ(printed(Vecteur(1, 2, 3)), " ( 1 ; 2 ; 3 )");
    EXPECT_EQ(printed(Vecteur(0.1, -2.5, 1e-7)), " ( 0.1 ; -2.5 ; 1e-07 )");
}

TEST(Vecteur, PrintsInTheStreamsFormat) {
    std::ostringstream out;
    out << std::fixed << std::setprecision(2) << Vecteur(1, 2, 3);
    EXPECT_EQ(out.str(), " ( 1.00 ; 2.00 ; 3.00 )");
    std::ostringstream precise;
    precise << std::setprecision(17) << Vecteur(0.1, 0.2, 0.7);
    EXPECT_EQ(precise.str(),
              " ( 0.10000000000000001 ; 0.20000000000000001 ; 0.69999999999999996 )");
}
