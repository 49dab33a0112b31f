#include "math/Triple.h"

#include "math/Vecteur.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

TEST(Triple, CoordinatesAreCountedFromZero) {
    const FloatTriple triple{0.3F, -1.7F, 2.9F};
    EXPECT_EQ(coordinate(triple, 0), 0.3F);
    EXPECT_EQ(coordinate(triple, 1), -1.7F);
    EXPECT_EQ(coordinate(triple, 2), 2.9F);
}

TEST(Triple, GoesIntoAnArrayAndBack) {
    float values[3] = {};
    store({0.3F, -1.7F, 2.9F}, values);
    EXPECT_EQ(values[0], 0.3F);
    EXPECT_EQ(values[1], -1.7F);
    EXPECT_EQ(values[2], 2.9F);
    EXPECT_EQ(toFloatTriple(values), (FloatTriple{0.3F, -1.7F, 2.9F}));
}

TEST(Triple, DiffersWhereOneCoordinateDoes) {
    const Triple triple{0.3, -1.7, 2.9};
    EXPECT_EQ(triple, (Triple{0.3, -1.7, 2.9}));
    EXPECT_NE(triple, (Triple{0.4, -1.7, 2.9}));
    EXPECT_NE(triple, (Triple{0.3, -1.6, 2.9}));
    EXPECT_NE(triple, (Triple{0.3, -1.7, 2.8}));
}

TEST(Triple, NarrowsEachCoordinateAndWidensWithoutLoss) {
    EXPECT_EQ(narrowed({0.1, 0.2, 0.3}), (FloatTriple{0.1F, 0.2F, 0.3F}));
    EXPECT_EQ(narrowed(widened({0.1F, 0.2F, 0.3F})), (FloatTriple{0.1F, 0.2F, 0.3F}));
    EXPECT_NE(widened({0.1F, 0.2F, 0.3F}).x, 0.1);
}

TEST(Triple, ComputesAsTheRunTimeVectorsDo) {
    const Triple a{0.31, -1.73, 2.97};
    const Triple b{-0.59, 4.21, 0.83};
    const double factor = 1.37;
    Vecteur wideB = toVecteur(b);
    EXPECT_EQ(toVecteur(a + b), toVecteur(a) + wideB);
    EXPECT_EQ(toVecteur(a - b), toVecteur(a) - wideB);
    EXPECT_EQ(toVecteur(factor * b), factor * wideB);
    EXPECT_EQ(dot(a, b), toVecteur(a) * wideB);
    EXPECT_FALSE(std::signbit(dot({-0.0, 0.0, 0.0}, {1, 1, 1})));
}

TEST(Triple, IsTheFirstThreeCoordinatesOfAVectorThatHasThem) {
    const double values[] = {0.31, -1.73, 2.97, 8.5};
    EXPECT_EQ(toTriple(Vecteur(values, 4)), (Triple{0.31, -1.73, 2.97}));
    for (const int dimension : {0, 1, 2}) {
        try {
            toTriple(Vecteur(values, dimension));
            ADD_FAILURE() << "nothing is thrown for dimension " << dimension;
        } catch (const std::string& text) {
            EXPECT_EQ(text, "Erreur surcharge []: dimension depassee.");
        }
    }
}
