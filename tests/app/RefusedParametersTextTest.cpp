#include "app/RefusedParametersText.h"

#include "hyperboloid/HyperboloidParameters.h"

#include <gtest/gtest.h>

namespace {

TEST(RefusedParametersTextTest, TellsTheNumbersOfTheConditionAndWhichItIs) {
    const HyperboloidParameters kept;
    HyperboloidParameters refused;
    refused.K13 = 3.07;
    EXPECT_EQ(RefusedParametersText::of(refused, kept),
              "Refused: K1 = 1.00, K2 = 1.50, K3 = 1.00, K13 = 3.07, K23 = 0.50: "
              "K13²/K1 + K23²/K2 < K3 does not hold");
    refused.K13 = 0.13;
    refused.K1 = 1.51;
    EXPECT_EQ(RefusedParametersText::of(refused, kept),
              "Refused: K1 = 1.51, K2 = 1.50, K3 = 1.00, K13 = 0.13, K23 = 0.50: K1 ≤ K2 does not "
              "hold");
}

TEST(RefusedParametersTextTest, TellsEveryOtherValueThatWasChanged) {
    HyperboloidParameters kept;
    kept.K23 = static_cast<double>(0.1F);
    kept.U1 = static_cast<double>(0.83F);
    HyperboloidParameters refused = kept;
    refused.U1 = 0.83; // the model's own value, as it is entered
    refused.K3 = 0.0;
    refused.U3 = -0.29;
    refused.horizontalPrecision = 31;
    refused.u3axisRadius = 0.07;
    EXPECT_TRUE(RefusedParametersText::of(refused, kept)
                    .startsWith("Refused: K1 = 1.00, K2 = 1.50, K3 = 0.00, K13 = 0.50, K23 = 0.10, "
                                "Û3 = -0.29, Horizontal Prec = 31, U3Axis Radius = 0.07: "));
}

} // namespace
