#include "app/SurfaceConditionText.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using Cause = SurfaceCondition::Cause;
using Drawn = SurfaceCondition::Drawn;

TEST(SurfaceConditionTextTest, OfTheQuadricThereIsNothingToSay) {
    EXPECT_EQ(SurfaceConditionText::of({}), "");
    EXPECT_EQ(SurfaceConditionText::explanation({}), "");
}

TEST(SurfaceConditionTextTest, NamesWhatIsDrawnAndEveryCause) {
    EXPECT_EQ(SurfaceConditionText::of(
                  {Drawn::unitHyperboloid, {Cause::zeroK13, Cause::zeroK23, Cause::zeroUHat}}),
              "Unit hyperboloid, not the quadric: K13 = 0 and K23 = 0 and Û = 0");
    EXPECT_EQ(SurfaceConditionText::of({Drawn::nothing, {Cause::equalK1K2}}),
              "No surface: K1 = K2");
    EXPECT_EQ(SurfaceConditionText::of({Drawn::point, {Cause::uHatOnThirdAxis}}),
              "Point, not the quadric: Û1 = Û2 = 0 (a cone)");
}

TEST(SurfaceConditionTextTest, TellsAllSurfacesAndAllCausesApart) {
    std::set<QString> texts;
    std::set<QString> explanations;
    for (const Drawn drawn :
         {Drawn::unitHyperboloid, Drawn::rounded, Drawn::point, Drawn::nothing}) {
        for (const Cause cause : {Cause::equalK1K2, Cause::zeroK13, Cause::zeroK23, Cause::zeroUHat,
                                  Cause::zeroSigma, Cause::uHatOnThirdAxis, Cause::vanishingK}) {
            texts.insert(SurfaceConditionText::of({drawn, {cause}}));
        }
        explanations.insert(SurfaceConditionText::explanation({drawn, {Cause::zeroK13}}));
    }
    EXPECT_EQ(texts.size(), 28U);
    EXPECT_EQ(explanations.size(), 4U);
}

} // namespace
