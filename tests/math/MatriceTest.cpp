#include "math/Matrice.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>
#include <utility>

namespace {

template <typename Operation>
std::string thrownBy(Operation operation) {
    try {
        operation();
    } catch (const std::string& text) {
        return text;
    }
    return {};
}

void expectEqual(Matrice one, Matrice other) {
    ASSERT_EQ(one.Lsize(), other.Lsize());
    for (int i = 0; i < one.Lsize(); ++i) {
        EXPECT_EQ(one[i], other[i]) << "row " << i;
    }
}

void expectNear(Matrice one, Matrice other, double tolerance) {
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            EXPECT_NEAR(one[i][j], other[i][j], tolerance) << i << " " << j;
        }
    }
}

Matrice counting() {
    return {1, 2, 3, 4, 5, 6, 7, 8, 10};
}

/** A matrix whose rows have all been made longer by one. */
Matrice withFourColumns() {
    Matrice m;
    for (int i = 0; i < 3; ++i) {
        m[i].ajoute(i + 7);
    }
    return m;
}

/** A matrix of rows of two. */
Matrice withTwoColumns() {
    Matrice m;
    for (int i = 0; i < 3; ++i) {
        m[i] = Vecteur(2);
        m[i][0] = 3 * i + 1;
        m[i][1] = 3 * i + 2;
    }
    return m;
}

std::string printed(const Matrice& m) {
    std::ostringstream out;
    out << m;
    return out.str();
}

} // namespace

TEST(Matrice, IsTheIdentityByDefault) {
    expectEqual(Matrice(), Matrice(1, 0, 0, 0, 1, 0, 0, 0, 1));
    EXPECT_EQ(Matrice().Lsize(), 3);
    EXPECT_EQ(Matrice().Csize(), 3);
}

TEST(Matrice, TakesADiagonalOrNineValuesRowByRow) {
    expectEqual(Matrice(2, 3, 4), Matrice(2, 0, 0, 0, 3, 0, 0, 0, 4));
    EXPECT_EQ(counting()[1], Vecteur(4, 5, 6));
    EXPECT_EQ(counting()[2][0], 7);
}

TEST(Matrice, OfTwoAnglesIsARotation) {
    const double a = 0.3;
    const double b = -1.1;
    expectEqual(Matrice(a, b),
                Matrice(std::cos(b), std::sin(b), 0, -std::cos(a) * std::sin(b),
                        std::cos(a) * std::cos(b), std::sin(a), std::sin(a) * std::sin(b),
                        -std::sin(a) * std::cos(b), std::cos(a)));
    expectNear(Matrice(0.0, 0.0), Matrice(), 0);
}

TEST(Matrice, RotationsHaveDeterminantOneAndTransposeToTheirInverse) {
    for (int i = 0; i < 22; ++i) {
        for (int j = 0; j < 20; ++j) {
            Matrice rotation(-4 + 0.37 * i, -4 + 0.41 * j);
            EXPECT_NEAR(rotation.det(), 1, 1e-14);
            expectNear(rotation.transp(), rotation.inv(), 1e-14);
        }
    }
}

TEST(Matrice, IndexMustBeARow) {
    Matrice m;
    EXPECT_EQ(thrownBy([&] { m[3]; }), "Surcharge [] Erreur: dimension fausse.");
    EXPECT_EQ(thrownBy([&] { m[-1]; }), "Surcharge [] Erreur: dimension fausse.");
    EXPECT_EQ(thrownBy([&] { m[2][0] = 5; }), "");
    EXPECT_EQ(m[2][0], 5);
}

TEST(Matrice, CopiesAreIndependent) {
    Matrice original;
    Matrice copy(original);
    copy[0][0] = 9;
    expectEqual(original, Matrice());
}

TEST(Matrice, ProductIsTheOrdinaryOne) {
    expectEqual(counting() * Matrice(), counting());
    expectEqual(Matrice() * counting(), counting());
    expectEqual(counting() * Matrice(1, 0, 2, 0, 1, 0, 3, 0, 1),
                Matrice(10, 2, 5, 22, 5, 14, 37, 8, 24));
}

TEST(Matrice, TimesAVectorIsTheRowsDotProducts) {
    EXPECT_EQ(counting() * Vecteur(1, 0, -1), Vecteur(-2, -2, -3));
    EXPECT_EQ(Matrice() * Vecteur(4, 5, 6), Vecteur(4, 5, 6));
}

TEST(Matrice, ScalesFromBothSides) {
    Matrice m = counting();
    const Matrice doubled(2, 4, 6, 8, 10, 12, 14, 16, 20);
    expectEqual(m * 2.0, doubled);
    expectEqual(2.0 * m, doubled);
    expectEqual(m, counting());
}

TEST(Matrice, AddsAndSubtractsRowByRow) {
    Matrice m = counting();
    expectEqual(m + Matrice(), Matrice(2, 2, 3, 4, 6, 6, 7, 8, 11));
    expectEqual(m - Matrice(), Matrice(0, 2, 3, 4, 4, 6, 7, 8, 9));
    expectEqual(m, counting());
}

TEST(Matrice, TransposeSwapsRowsAndColumns) {
    expectEqual(counting().transp(), Matrice(1, 4, 7, 2, 5, 8, 3, 6, 10));
}

TEST(Matrice, TransposeOfTwoColumnsKeepsTheLastRowOfTheIdentity) {
    const double values[3][2] = {{1, 2}, {4, 5}, {7, 8}};
    Matrice narrow;
    for (int i = 0; i < 3; ++i) {
        narrow[i].SetVect(Vecteur(values[i], 2));
    }
    expectEqual(narrow.transp(), Matrice(1, 4, 7, 2, 5, 8, 0, 0, 1));
}

TEST(Matrice, DeterminantOfKnownMatrices) {
    EXPECT_EQ(Matrice().det(), 1);
    EXPECT_EQ(Matrice(2, 3, 4).det(), 24);
    EXPECT_EQ(counting().det(), -3);
    EXPECT_EQ(Matrice(1, 2, 3, 2, 4, 6, 1, 1, 1).det(), 0);
}

TEST(Matrice, DeterminantIsGroupedAsItsFormula) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> value(-1e3, 1e3);
    for (int i = 0; i < 200; ++i) {
        double m[9];
        for (double& entry : m) {
            entry = value(random);
        }
        const double expected =
            m[2] * (m[3] * m[7] - m[4] * m[6]) +
            (m[0] * (m[4] * m[8] - m[5] * m[7]) - m[1] * (m[3] * m[8] - m[5] * m[6]));
        EXPECT_EQ(Matrice(m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8]).det(), expected);
    }
}

TEST(Matrice, InverseUndoesTheMatrix) {
    expectEqual(Matrice().inv(), Matrice());
    expectEqual(Matrice(2, 4, 8).inv(), Matrice(0.5, 0.25, 0.125));
    expectNear(counting() * counting().inv(), Matrice(), 1e-14);
    expectNear(counting().inv() * counting(), Matrice(), 1e-14);
}

TEST(Matrice, InverseMultipliesTheAdjugateByTheReciprocalOfTheDeterminant) {
    const double m[3][3] = {{1.1, 0.7, -0.3}, {0.2, 1.9, 0.53}, {-0.41, 0.6, 2.3}};
    const double adjugate[3][3] = {
        {m[1][1] * m[2][2] - m[1][2] * m[2][1], m[0][2] * m[2][1] - m[0][1] * m[2][2],
         m[0][1] * m[1][2] - m[0][2] * m[1][1]},
        {m[1][2] * m[2][0] - m[1][0] * m[2][2], m[0][0] * m[2][2] - m[0][2] * m[2][0],
         m[0][2] * m[1][0] - m[0][0] * m[1][2]},
        {m[1][0] * m[2][1] - m[1][1] * m[2][0], m[0][1] * m[2][0] - m[0][0] * m[2][1],
         m[0][0] * m[1][1] - m[0][1] * m[1][0]}};
    const double determinant = m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]) +
                               (m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
                                m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]));
    Matrice inverse =
        Matrice(m[0][0], m[0][1], m[0][2], m[1][0], m[1][1], m[1][2], m[2][0], m[2][1], m[2][2])
            .inv();
    int differences = 0;
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            EXPECT_EQ(inverse[i][j], adjugate[i][j] * (1.0 / determinant)) << i << ", " << j;
            differences += adjugate[i][j] / determinant != inverse[i][j] ? 1 : 0;
        }
    }
    EXPECT_GT(differences, 0) << "the two ways to divide must differ here";
}

TEST(Matrice, ProductSumsFromTheFirstTermToTheLast) {
    // From the last term to the first the sum is 1.
    Matrice product =
        Matrice(1, 1e16, -1e16, 0, 0, 0, 0, 0, 0) * Matrice(1, 0, 0, 1, 0, 0, 1, 0, 0);
    EXPECT_EQ(product[0][0], 0.0);
}

TEST(Matrice, InverseOfASingularMatrixIsNotFiniteAndThrowsNothing) {
    Matrice inverse(1, 1, 1);
    EXPECT_EQ(thrownBy([&] { inverse = Matrice(1, 2, 3, 2, 4, 6, 1, 1, 1).inv(); }), "");
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            EXPECT_FALSE(std::isfinite(inverse[i][j]));
        }
    }
    EXPECT_TRUE(std::isnan(Matrice(0, 0, 0).inv()[0][0]));
}

TEST(Matrice, SizesThatDoNotFitThrowTheirTexts) {
    Matrice m;
    Matrice wide = withFourColumns();
    EXPECT_EQ(thrownBy([&] { wide* m; }),
              "Multiplication matrice Erreur: colonnes et lignes ne correspondent pas.");
    EXPECT_EQ(thrownBy([&] { m* Vecteur(2); }),
              "Multiplication Matrice*Vecteur Erreur: dimensions fausses.");
    EXPECT_EQ(thrownBy([&] { wide* Vecteur(3); }),
              "Multiplication Matrice*Vecteur Erreur: dimensions fausses.");
    EXPECT_EQ(thrownBy([&] { m + wide; }), "Somme matrice Erreur: dimensions pas egales.");
    EXPECT_EQ(thrownBy([&] { m - wide; }), "Difference matrice Erreur: dimensions pas egales.");
}

TEST(Matrice, SizesThatDoNotFitTheOtherWayRoundThrowTheSameTexts) {
    Matrice m;
    Matrice narrow = withTwoColumns();
    Matrice wide = withFourColumns();
    EXPECT_EQ(thrownBy([&] { narrow* m; }),
              "Multiplication matrice Erreur: colonnes et lignes ne correspondent pas.");
    EXPECT_EQ(thrownBy([&] { m* Vecteur(4); }),
              "Multiplication Matrice*Vecteur Erreur: dimensions fausses.");
    EXPECT_EQ(thrownBy([&] { wide + m; }), "Somme matrice Erreur: dimensions pas egales.");
    EXPECT_EQ(thrownBy([&] { wide - m; }), "Difference matrice Erreur: dimensions pas egales.");
}

TEST(Matrice, ProductWithAVectorIsOfTheVectorsDimension) {
    Vecteur v(2);
    v[0] = 3;
    v[1] = -2;
    Vecteur product = withTwoColumns() * v;
    ASSERT_EQ(product.size(), 2);
    EXPECT_EQ(product[0], 1.0 * 3 + 2.0 * -2);
    EXPECT_EQ(product[1], 4.0 * 3 + 5.0 * -2);
    // Of four columns the fourth row is missing.
    EXPECT_EQ(thrownBy([&] { withFourColumns() * Vecteur(4); }),
              "Surcharge [] Erreur: dimension fausse.");
}

TEST(Matrice, ProductRunsItsFirstIndexOverTheColumnsOfTheSecondFactor) {
    // The fourth column of the second factor so becomes a fourth row of the product.
    Matrice m;
    EXPECT_EQ(thrownBy([&] { m* withFourColumns(); }), "Surcharge [] Erreur: dimension fausse.");
}

TEST(Matrice, RowOfAnotherLengthFailsInTheRow) {
    Matrice m;
    Matrice uneven;
    uneven[1].ajoute(0);
    EXPECT_EQ(thrownBy([&] { m + uneven; }), "Somme de vecteurs Erreur: dimensions pas egales");
    EXPECT_EQ(thrownBy([&] { m - uneven; }),
              "Difference de vecteurs Erreur: dimensions pas egales");
}

TEST(Matrice, HasAsManyColumnsAsItsFirstRow) {
    for (const auto& [row, columns] : {std::pair(0, 4), std::pair(1, 3), std::pair(2, 3)}) {
        Matrice uneven;
        uneven[row].ajoute(5);
        EXPECT_EQ(uneven.Csize(), columns) << row;
    }
}

TEST(Matrice, RowAccessesInsideTheOperationsAreChecked) {
    Matrice narrow;
    for (int i = 0; i < 3; ++i) {
        narrow[i].Efface();
    }
    EXPECT_EQ(thrownBy([&] { narrow.det(); }), "Erreur surcharge []: dimension depassee.");
    EXPECT_EQ(thrownBy([&] { narrow.inv(); }), "Erreur surcharge []: dimension depassee.");
    Matrice wide = withFourColumns();
    EXPECT_EQ(thrownBy([&] { wide.transp(); }), "Surcharge [] Erreur: dimension fausse.");
}

TEST(Matrice, PrintsThreeLinesInBrackets) {
    EXPECT_EQ(printed(Matrice()), "[ [  1.00000  0.00000  0.00000 ]\n"
                                  "  [  0.00000  1.00000  0.00000 ]\n"
                                  "  [  0.00000  0.00000  1.00000 ] ]\n");
}

TEST(Matrice, PrintsWholeRowsButOnlyThreeValuesOfTheLast) {
    EXPECT_EQ(printed(withFourColumns()), "[ [  1.00000  0.00000  0.00000  7.00000 ]\n"
                                          "  [  0.00000  1.00000  0.00000  8.00000 ]\n"
                                          "  [  0.00000  0.00000  1.00000 ] ]\n");
    // Of two there is no third.
    EXPECT_EQ(thrownBy([] { printed(withTwoColumns()); }),
              "Erreur surcharge []: dimension depassee.");
}

TEST(Matrice, PrintsARowThatIsLongerThanTheFirstLikeTheFirst) {
    Matrice uneven;
    uneven[1].ajoute(5);
    EXPECT_EQ(printed(uneven), printed(Matrice()));
}

TEST(Matrice, PrintsInTheStreamsPrecisionAndClearsTheFlag) {
    std::ostringstream out;
    out.precision(3);
    out << Matrice(1.5, -2, 1e6) << 1.0;
    EXPECT_EQ(out.str(), "[ [  1.50  0.00  0.00 ]\n"
                         "  [  0.00  -2.00  0.00 ]\n"
                         "  [  0.00  0.00  1.00e+06 ] ]\n1");
}
