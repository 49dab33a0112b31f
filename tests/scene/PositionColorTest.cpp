#include "scene/PositionColor.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

TEST(PositionColor, FollowsItsFormula) {
    // The sums of products are -10.23, -6.765 and 1.045; the sines were taken elsewhere.
    const FloatTriple color = positionColor({0.55F, -2.2F, 4.1F});
    EXPECT_NEAR(color.x, 0.0454511, 2e-6);
    EXPECT_NEAR(color.y, 0.4117419, 2e-6);
    EXPECT_NEAR(color.z, 0.6826278, 2e-6);
}

TEST(PositionColor, IsBlackOnTheAxesAndBrightestWhereTheSineIsOne) {
    EXPECT_EQ(positionColor({0, 0, 7.3F}), (FloatTriple{0, 0, 0}));
    EXPECT_EQ(positionColor({-2.9F, 0, 0}), (FloatTriple{0, 0, 0}));
    // y x = (pi / 2)²; with z = 0 green has no product left.
    const FloatTriple color = positionColor({2.4674011F, 1, 0});
    EXPECT_FLOAT_EQ(color.x, 0.8F);
    EXPECT_EQ(color.y, 0);
    EXPECT_FLOAT_EQ(color.z, 0.8F);
}

TEST(PositionColor, ChannelsLieBetweenBlackAndFourFifths) {
    for (float t = -9; t < 9; t += 0.37F) {
        const FloatTriple color = positionColor({t, 1.3F * t - 0.4F, 2.1F - t * t});
        for (const float channel : {color.x, color.y, color.z}) {
            EXPECT_GE(channel, 0);
            EXPECT_LE(channel, 0.8F);
        }
    }
}

TEST(PositionColor, OfAPlaceThatIsNowhereIsNone) {
    const FloatTriple color = positionColor({std::numeric_limits<float>::infinity(), 0.5F, 0.25F});
    EXPECT_TRUE(std::isnan(color.x) && std::isnan(color.y) && std::isnan(color.z));
}
