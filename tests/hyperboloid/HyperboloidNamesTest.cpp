#include "hyperboloid/HyperboloidNames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Names = std::vector<std::string>;

TEST(HyperboloidNames, AreThoseThatScenesBear) {
    using namespace HyperboloidNames;
    EXPECT_EQ((Names{surface, mesh, u3Axis, u3ConstAxis, axis, cone, uHat, center}),
              (Names{"Hyperboloid", "HyperboloidMesh", "U3Axis", "U3ConstAxis", "Axis", "Cone",
                     "uHat", "Center"}));
}

TEST(HyperboloidNames, DecorationsAreRemovedInTheirOrder) {
    const auto& decorations = HyperboloidNames::decorations;
    EXPECT_EQ(Names(decorations.begin(), decorations.end()),
              (Names{"Center", "uHat", "U3ConstAxis", "U3Axis"}));
}

} // namespace
