#include "scene/Finite.h"

#include <gtest/gtest.h>
#include <limits>

TEST(Finite, IsAPointWithThreeFiniteCoordinates) {
    EXPECT_TRUE(isFinite(SbVec3f(0.5F, -3.25F, std::numeric_limits<float>::max())));
    for (const float nowhere :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
          -std::numeric_limits<float>::infinity()}) {
        for (int axis = 0; axis < 3; ++axis) {
            SbVec3f point(0.5F, -3.25F, 7);
            point[axis] = nowhere;
            EXPECT_FALSE(isFinite(point)) << nowhere << " on axis " << axis;
        }
    }
}
