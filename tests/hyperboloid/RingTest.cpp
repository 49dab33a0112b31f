#include "hyperboloid/Ring.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(Ring, StepIsA29thOfATurnToTheLastBit) {
    EXPECT_EQ(Ring::pointCount, 30);
    EXPECT_EQ(Ring::step, 0.21666156231653746);
    EXPECT_EQ(static_cast<float>(Ring::step), 0.21666156F);
}

TEST(Ring, DirectionsAreThoseOfTheAnglesInDouble) {
    for (int k = 0; k < 30; ++k) {
        const double angle = k * 6.283185307179586 / 29;
        const auto& [cosine, sine] = Ring::directions()[static_cast<std::size_t>(k)];
        EXPECT_EQ(cosine, std::cos(angle)) << k;
        EXPECT_EQ(sine, std::sin(angle)) << k;
    }
}

TEST(Ring, TheLastPointRepeatsTheFirst) {
    EXPECT_EQ(Ring::directions().front().cosine, Ring::directions().back().cosine);
    EXPECT_NEAR(Ring::directions().front().sine, Ring::directions().back().sine, 1e-15);
}

} // namespace
