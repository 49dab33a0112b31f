#include "helix/Helix.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr float halfPi = 1.5707964F;

} // namespace

TEST(HelixParameters, DefaultHelixHasItsNumbers) {
    const Helix helix;
    EXPECT_EQ(helix.getRadius(), 6.0F);
    EXPECT_EQ(helix.getPitch(), 2.0F);
    EXPECT_EQ(helix.getCurvature(), 0.15F);
    EXPECT_EQ(helix.getTorsion(), 0.05F);
    EXPECT_EQ(helix.getOmega(), 0.15811388F);
    EXPECT_EQ(helix.getPhi(), 1.0F);
    EXPECT_EQ(helix.getRibRange(), 0.05F);
    EXPECT_EQ(helix.getNTurns(), 5.0F);
    EXPECT_EQ(helix.getTubeR(), 0.01F);
    EXPECT_EQ(helix.getPrecisionLine(), 50U);
    EXPECT_EQ(helix.getNbLineVertices(), 250U);
    EXPECT_EQ(helix.getPrecisionTube(), 16U);
    EXPECT_EQ(helix.getHelixColor(), (FloatTriple{0, 0, 0}));
}

TEST(HelixParameters, ConversionsAgreeWithTheStoredPairsAndStoreNothing) {
    const Helix helix(3.0F, 1.0F, 2.0F, 16, true);
    EXPECT_EQ(helix.k_from_r_p(), 0.3F);
    EXPECT_EQ(helix.t_from_r_p(), 0.1F);
    EXPECT_NEAR(helix.r_from_k_t(), 3.0F, 1e-6F);
    EXPECT_NEAR(helix.p_from_k_t(), 1.0F, 1e-6F);
    EXPECT_EQ(helix.getRadius(), 3.0F);
    EXPECT_EQ(helix.getCurvature(), 0.3F);
}

TEST(HelixParameters, IsMadeFromRadiusAndPitch) {
    const Helix helix(3.0F, 4.0F, 2.5F, 9, true);
    EXPECT_EQ(helix.getRadius(), 3.0F);
    EXPECT_EQ(helix.getPitch(), 4.0F);
    EXPECT_EQ(helix.getCurvature(), 3.0F / 25.0F);
    EXPECT_EQ(helix.getTorsion(), 4.0F / 25.0F);
    EXPECT_EQ(helix.getOmega(), 0.2F);
    EXPECT_EQ(helix.getPhi(), 1.0F);
    EXPECT_EQ(helix.getNbLineVertices(), 125U);
    EXPECT_EQ(helix.getPrecisionTube(), 9U);
    EXPECT_EQ(helix.getPrecisionLine(), 50U);
    EXPECT_EQ(helix.getTubeVertices().size(), 125U * 9U);
}

TEST(HelixParameters, IsMadeFromCurvatureAndTorsion) {
    const Helix helix(0.6F, 0.8F, 1.0F, 16, false);
    EXPECT_EQ(helix.getCurvature(), 0.6F);
    EXPECT_EQ(helix.getTorsion(), 0.8F);
    EXPECT_NEAR(helix.getRadius(), 0.6F, 1e-6F);
    EXPECT_NEAR(helix.getPitch(), 0.8F, 1e-6F);
    EXPECT_EQ(helix.getNbLineVertices(), 50U);
}

TEST(HelixParameters, CurvatureAndTorsionOffTheUnitCircleGiveRadiusPitchAndSpeed) {
    const Helix helix(0.3F, 0.4F, 1.7F, 7, false);
    EXPECT_NEAR(helix.getRadius(), 1.2F, 1e-6F);
    EXPECT_NEAR(helix.getPitch(), 1.6F, 1e-6F);
    EXPECT_NEAR(helix.getOmega(), 0.5F, 1e-6F);
    EXPECT_EQ(helix.getNbLineVertices(), 85U);
}

TEST(HelixParameters, GivenTurnsAreThoseOfItsTables) {
    // It begins beside the first axis and rises by the pitch for each unit of the angle.
    const Helix helix(3, 4, 2.5F, 9, true);
    constexpr float halfAngle = 2.5F * 2 * halfPi;
    EXPECT_EQ(helix.getNTurns(), 2.5F);
    EXPECT_EQ(helix.getLineVertex(0, 0), 3);
    EXPECT_NEAR(helix.getLineVertex(0, 2), -4 * halfAngle, 1e-4F);
    EXPECT_NEAR(helix.getLineVertex(124, 2), 4 * halfAngle, 1e-4F);
    for (const std::size_t place : {0U, 1124U}) {
        const auto& [x, y, z] = helix.getTubeVertices()[place];
        EXPECT_NEAR(std::hypot(x, y), 3, 0.02F) << place;
    }
}

TEST(HelixParameters, PointGivesCurvatureTorsionAndColour) {
    Helix helix;
    EXPECT_TRUE(helix.refresh_param(3, 4, 5, 0.1F, 0.2F, 0.3F));
    EXPECT_EQ(helix.getCurvature(), 5);
    EXPECT_EQ(helix.getTorsion(), 5);
    EXPECT_EQ(helix.getRadius(), 0.1F);
    EXPECT_EQ(helix.getPitch(), 0.1F);
    EXPECT_EQ(helix.getOmega(), 1 / std::sqrt(0.1F * 0.1F + 0.1F * 0.1F));
    EXPECT_EQ(helix.getHelixColor(), (FloatTriple{0.1F, 0.2F, 0.3F}));
    EXPECT_EQ(helix.getNbLineVertices(), 250U);
}

TEST(HelixParameters, PhiIsThePolarAngleFromTheSecondAxis) {
    Helix helix;
    helix.refresh_param(0, 1, 0, 0, 0, 0);
    EXPECT_EQ(helix.getCurvature(), 1);
    EXPECT_EQ(helix.getTorsion(), 0);
    EXPECT_EQ(helix.getRadius(), 1);
    EXPECT_EQ(helix.getPitch(), 0);
    EXPECT_EQ(helix.getPhi(), 0);
    helix.refresh_param(1, 0, 0, 0, 0, 0);
    EXPECT_EQ(helix.getPhi(), halfPi);
    helix.refresh_param(-1, 0, 0, 0, 0, 0);
    EXPECT_EQ(helix.getPhi(), 4.712389F);
    helix.refresh_param(0, -1, 0, 0, 0, 0);
    EXPECT_EQ(helix.getPhi(), 3.1415927F);
    for (float angle = -1.5F; angle < 4.7F; angle += 0.1F) {
        helix.refresh_param(2 * std::sin(angle), 2 * std::cos(angle), 0.3F, 0, 0, 0);
        EXPECT_NEAR(helix.getPhi(), angle, 2e-3F);
    }
}

TEST(HelixParameters, PhiRuleAnswersForTheStoredCurvature) {
    Helix helix;
    helix.refresh_param(3, 4, 0, 0, 0, 0);
    EXPECT_EQ(helix.phi_from_u(3, 4), helix.getPhi());
    EXPECT_EQ(helix.phi_from_u(5, 1), std::asin(1.0F));
    EXPECT_EQ(helix.phi_from_u(2, 0), halfPi);
    EXPECT_EQ(helix.phi_from_u(0, 0), 0);
    EXPECT_TRUE(std::isnan(helix.phi_from_u(6, 1)));
}

TEST(HelixParameters, PhiOfACurvatureThatSinglePrecisionCannotHoldIsTheFirstCoordinate) {
    // The squares of the coordinates overflow to infinity here...
    Helix helix;
    EXPECT_TRUE(helix.refresh_param(1e20F, 1, 0, 0, 0, 0));
    EXPECT_EQ(helix.getCurvature(), std::numeric_limits<float>::infinity());
    EXPECT_EQ(helix.getPhi(), 1e20F);
    // ...and vanish here.
    EXPECT_FALSE(helix.refresh_param(1e-30F, 0, 1, 0, 0, 0));
    EXPECT_EQ(helix.getCurvature(), 0);
    EXPECT_EQ(helix.getPhi(), 1e-30F);
}

TEST(HelixParameters, OnlyAQuotientThatIsNoNumberIsReported) {
    Helix helix;
    // Vanishing: the quotient of the second coordinate and the curvature is infinite.
    EXPECT_TRUE(helix.refresh_param(0, 1e-30F, 1, 0, 0, 0));
    EXPECT_EQ(helix.getCurvature(), 0);
    EXPECT_FALSE(helix.refresh_param(0, std::numeric_limits<float>::infinity(), 1, 0, 0, 0));
}

TEST(HelixParameters, StraightRodIsReportedAndStaysDrawable) {
    Helix helix;
    EXPECT_FALSE(helix.refresh_param(0, 0, 2, 1, 1, 1));
    EXPECT_EQ(helix.getRadius(), 0);
    EXPECT_EQ(helix.getPitch(), 0.5F);
    EXPECT_EQ(helix.getPhi(), 0);
    helix.generatePoints(true, true, true);
    for (const auto& [x, y, z] : helix.getTubeVertices()) {
        EXPECT_TRUE(std::isfinite(x) && std::isfinite(y) && std::isfinite(z));
    }
}

TEST(HelixParameters, OriginGivesNaNAndNoHarm) {
    Helix helix;
    EXPECT_FALSE(helix.refresh_param(0, 0, 0, 1, 1, 1));
    EXPECT_TRUE(std::isnan(helix.getRadius()));
    EXPECT_TRUE(std::isnan(helix.getPitch()));
    EXPECT_TRUE(std::isnan(helix.getOmega()));
    helix.generatePoints(true, true, true);
    EXPECT_TRUE(std::isnan(helix.getLineVertex(0, 0)));
}

TEST(HelixParameters, CountsAreTruncated) {
    Helix helix;
    helix.setPrecisionLine(7);
    helix.setNTurns(2.9F);
    EXPECT_EQ(helix.getNbLineVertices(), 20U);
    EXPECT_EQ(helix.getPrecisionLine(), 7U);
}

TEST(HelixParameters, CountOfGivenTurnsIsTruncatedFromADoubleProduct) {
    // The float next to 0.58 is a little less: 28.9999992 vertices, which single precision
    // calls 29.
    for (const bool fromRadiusPitch : {false, true}) {
        EXPECT_EQ(Helix(0.7F, 0.3F, 0.58F, 9, fromRadiusPitch).getNbLineVertices(), 28U);
        EXPECT_EQ(Helix(0.7F, 0.3F, 0.59F, 9, fromRadiusPitch).getNbLineVertices(), 29U);
    }
}

TEST(HelixParameters, CountOfSetTurnsIsTruncatedFromAFloatProduct) {
    // In double precision it would be 28.9999992.
    Helix helix;
    helix.setNTurns(0.58F);
    EXPECT_EQ(helix.getNbLineVertices(), 29U);
}

TEST(HelixParameters, CountsThatAreNoneAreZero) {
    Helix helix;
    for (const float turns : {0.0F, -3.0F, std::numeric_limits<float>::quiet_NaN(),
                              -std::numeric_limits<float>::infinity()}) {
        helix.setNTurns(turns);
        EXPECT_EQ(helix.getNbLineVertices(), 0U);
        helix.init_tables(true, true, true);
        helix.generatePoints(true, true, true);
        EXPECT_TRUE(helix.getTubeVertices().empty());
    }
    helix.setNTurns(5);
    helix.setPrecisionLine(-4);
    EXPECT_EQ(helix.getNbLineVertices(), 0U);
    helix.setPrecisionTube(-1);
    EXPECT_EQ(helix.getPrecisionTube(), 0U);
}

TEST(HelixParameters, HugeCountsAreCut) {
    Helix helix;
    helix.setNTurns(1e30F);
    EXPECT_EQ(helix.getNbLineVertices(), std::numeric_limits<unsigned int>::max());
}
