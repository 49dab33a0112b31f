#include "helix/Helix.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using Point = FloatTriple;

float distance(const Point& one, const Point& other) {
    return std::hypot(one.x - other.x, one.y - other.y, one.z - other.z);
}

Point colorOf(const Helix& helix, const Point& point) {
    const float pt[3] = {point.x, point.y, point.z};
    float rgb[3];
    helix.computeColorForPoint(pt, rgb);
    return {rgb[0], rgb[1], rgb[2]};
}

} // namespace

TEST(HelixGeometry, DefaultHelixIsCentredOnItsAxis) {
    const Helix helix;
    EXPECT_EQ(helix.getLineVertex(0, 0), 6);
    EXPECT_EQ(helix.getLineVertex(0, 1), 0);
    EXPECT_NEAR(helix.getLineVertex(0, 2), -31.4159F, 1e-4F);
    EXPECT_NEAR(helix.getLineVertex(249, 0), 6, 1e-4F);
    EXPECT_NEAR(helix.getLineVertex(249, 1), 0, 1e-4F);
    EXPECT_NEAR(helix.getLineVertex(249, 2), 31.4159F, 1e-4F);
}

TEST(HelixGeometry, TablesHaveTheSizesOfTheCounts) {
    const Helix helix;
    EXPECT_EQ(helix.getLineVertices().size(), 250U);
    EXPECT_EQ(helix.getLineColors().size(), 250U);
    EXPECT_EQ(helix.getTubeVertices().size(), 4000U);
    EXPECT_EQ(helix.getTubeColors().size(), 4000U);
    EXPECT_EQ(helix.getRibbonVertices().size(), 500U);
    EXPECT_EQ(helix.getRibbonColors().size(), 500U);
}

TEST(HelixGeometry, CentreLineLiesOnItsCylinderAndRisesEvenly) {
    const Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    const float step = helix.getLineVertex(1, 2) - helix.getLineVertex(0, 2);
    for (int i = 0; i < 250; ++i) {
        EXPECT_NEAR(std::hypot(helix.getLineVertex(i, 0), helix.getLineVertex(i, 1)),
                    helix.getRadius(), 1e-5F);
        if (i > 0) {
            EXPECT_NEAR(helix.getLineVertex(i, 2) - helix.getLineVertex(i - 1, 2), step, 1e-5F);
        }
    }
}

TEST(HelixGeometry, TubeKeepsItsRadiusAndClosesWithoutASeam) {
    const Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    for (std::size_t i = 0; i < 250; ++i) {
        for (std::size_t j = 0; j < 16; ++j) {
            EXPECT_NEAR(distance(helix.getTubeVertices()[16 * i + j], helix.getLineVertices()[i]),
                        0.01F, 1e-6F);
        }
        EXPECT_LT(distance(helix.getTubeVertices()[16 * i], helix.getTubeVertices()[16 * i + 15]),
                  1e-6F);
    }
}

TEST(HelixGeometry, RibbonRunsFromTheCentreLineToOneSide) {
    const Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    for (std::size_t i = 0; i < 250; ++i) {
        EXPECT_EQ(helix.getRibbonVertices()[2 * i], helix.getLineVertices()[i]);
        EXPECT_NEAR(distance(helix.getRibbonVertices()[2 * i + 1], helix.getLineVertices()[i]),
                    0.05F, 1e-6F);
    }
}

TEST(HelixGeometry, ColoursGoByTheCentrePointAndAreAtMostFourFifths) {
    const Helix helix;
    for (std::size_t i = 0; i < 250; ++i) {
        const Point color = colorOf(helix, helix.getLineVertices()[i]);
        EXPECT_EQ(helix.getLineColors()[i], color);
        EXPECT_EQ(helix.getRibbonColors()[2 * i], color);
        EXPECT_EQ(helix.getRibbonColors()[2 * i + 1], color);
        for (std::size_t j = 0; j < 16; ++j) {
            EXPECT_EQ(helix.getTubeColors()[16 * i + j], color);
        }
        for (const float channel : {color.x, color.y, color.z}) {
            EXPECT_GE(channel, 0);
            EXPECT_LE(channel, 0.8F);
        }
    }
}

TEST(HelixGeometry, ColourOfAPointFollowsItsFormula) {
    const Helix helix;
    const Point color = colorOf(helix, {2, 3, -5});
    EXPECT_FLOAT_EQ(color.x, static_cast<float>(std::fabs(std::sin(std::sqrt(9.0))) * 0.8));
    EXPECT_FLOAT_EQ(color.y, static_cast<float>(std::fabs(std::sin(std::sqrt(25.0))) * 0.8));
    EXPECT_FLOAT_EQ(color.z, static_cast<float>(std::fabs(std::sin(std::sqrt(4.0))) * 0.8));
}

TEST(HelixGeometry, FrameVectorsAreUnitAndPerpendicular) {
    const Helix helix;
    for (float s = -20; s < 20; s += 0.7F) {
        const Vecteur v = helix.get_v(s);
        const Vecteur b = helix.get_b(s);
        EXPECT_NEAR(v.Module(), 1, 1e-6);
        EXPECT_NEAR(b.Module(), 1, 1e-6);
        EXPECT_NEAR(v * b, 0, 1e-6);
        const Vecteur d = helix.d1_from_v_b(v, b);
        EXPECT_NEAR(d * v, std::cos(1.0), 1e-6);
        EXPECT_NEAR(d * b, std::sin(1.0), 1e-6);
    }
    EXPECT_EQ(helix.get_v(0).GetCoord(0), -1);
    EXPECT_EQ(helix.get_b(0).GetCoord(2), static_cast<double>(6.0F * 0.15811388F));
}

TEST(HelixGeometry, SampleOperationsGiveTheTablesVertices) {
    const Helix helix;
    const auto s = static_cast<float>(5.0 * 6.283185307179586 * 17 / 249 *
                                      (1.0 / static_cast<double>(helix.getOmega())));
    float center[3];
    helix.computePositionForParams(s, center);
    float tube[3];
    const auto angle = static_cast<float>(3.0 * 6.283185307179586 / 15.0);
    helix.computePositionForParams(center, helix.get_v(s), helix.get_b(s), tube, angle);
    float edge[3];
    helix.computeRibbon(edge, center, helix.d1_from_v_b(helix.get_v(s), helix.get_b(s)));
    EXPECT_EQ(toFloatTriple(center), helix.getLineVertices()[17]);
    EXPECT_EQ(toFloatTriple(tube), helix.getTubeVertices()[16 * 17 + 3]);
    EXPECT_EQ(toFloatTriple(edge), helix.getRibbonVertices()[2 * 17 + 1]);
}

TEST(HelixGeometry, VectorsThatAreTooShortThrowTheirOwnMessage) {
    const Helix helix;
    const Vecteur whole(0.3, -0.4, 0.5);
    float center[3] = {1, 2, 3};
    float out[3] = {7, 8, 9};
    for (const int dimension : {0, 2}) {
        const Vecteur tooShort(dimension);
        const std::vector<std::function<void()>> operations = {
            [&] { helix.d1_from_v_b(tooShort, whole); },
            [&] { helix.d1_from_v_b(whole, tooShort); },
            [&] { helix.computeRibbon(out, center, tooShort); },
            [&] { helix.computePositionForParams(center, tooShort, whole, out, 0.7F); },
            [&] {
                helix.computePositionForParams(center, whole, tooShort, out, 0.7F);
            }};
        for (const auto& operation : operations) {
            try {
                operation();
                ADD_FAILURE() << "nothing is thrown for dimension " << dimension;
            } catch (const std::string& text) {
                EXPECT_EQ(text, "Erreur surcharge []: dimension depassee.");
            }
        }
    }
    EXPECT_EQ(toFloatTriple(out), (Point{7, 8, 9}));
}

TEST(HelixGeometry, TubeAndRibbonFollowTheLineAsItWasLastSampled) {
    Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    const Helix::Table line = helix.getLineVertices();
    helix.refresh_param(3, 1, 2, 1, 0, 0);
    helix.generatePoints(false, true, true);
    EXPECT_EQ(helix.getLineVertices(), line);
    EXPECT_NEAR(distance(helix.getTubeVertices()[16 * 9], line[9]), 0.01F, 1e-5F);
    EXPECT_EQ(helix.getRibbonVertices()[18], line[9]);
}

TEST(HelixGeometry, ChosenTablesOnlyAreSampled) {
    Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    const Helix::Table ribbon = helix.getRibbonVertices();
    const Helix::Table tube = helix.getTubeVertices();
    helix.setTubeR(0.3F);
    helix.setRibRange(0.4F);
    helix.generatePoints(false, true, false);
    EXPECT_EQ(helix.getRibbonVertices(), ribbon);
    EXPECT_NE(helix.getTubeVertices(), tube);
    helix.generatePoints(false, false, true);
    EXPECT_NE(helix.getRibbonVertices(), ribbon);
}

TEST(HelixGeometry, SingleVerticesAreFinite) {
    Helix helix;
    helix.setPrecisionTube(1);
    helix.setPrecisionLine(1);
    helix.setNTurns(1);
    helix.init_tables(true, true, true);
    helix.generatePoints(true, true, true);
    ASSERT_EQ(helix.getTubeVertices().size(), 1U);
    const auto [x, y, z] = helix.getTubeVertices()[0];
    EXPECT_TRUE(std::isfinite(x) && std::isfinite(y) && std::isfinite(z));
}

TEST(HelixGeometry, CopiesAreIndependent) {
    const Helix original;
    Helix copy(original);
    copy.refresh_param(1, 2, 3, 1, 1, 1);
    copy.generatePoints(true, true, true);
    EXPECT_EQ(original.getLineVertex(0, 0), 6);
    copy = original;
    EXPECT_EQ(copy.getLineVertices(), original.getLineVertices());
}
