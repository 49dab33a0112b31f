#include "math/Constants.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(Constants, AreTheDoublesNearestToPiAndItsDouble) {
    EXPECT_EQ(Constants::pi, std::acos(-1.0));
    EXPECT_EQ(Constants::fullTurn, 2.0 * std::acos(-1.0));
}
