#include "app/SurfaceConditionText.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using Cause = SurfaceCondition::Cause;
using Drawn = SurfaceCondition::Drawn;

TEST(SurfaceConditionTextTest, OfTheQuadricThereIsNothingToSay) {
    EXPECT_EQ(SurfaceConditionText::of({}), "");
}

TEST(SurfaceConditionTextTest, NamesWhatIsDrawnAndEveryCause) {
    EXPECT_EQ(SurfaceConditionText::of(
                  {Drawn::unitHyperboloid, {Cause::zeroK13, Cause::zeroK23, Cause::zeroUHat}}),
              "Unit hyperboloid drawn, not the quadric: K13 = 0 and K23 = 0 and Û = 0");
    EXPECT_EQ(SurfaceConditionText::of({Drawn::nothing, {Cause::equalK1K2}}),
              "No surface can be drawn: K1 = K2");
    EXPECT_EQ(SurfaceConditionText::of({Drawn::point, {Cause::uHatOnThirdAxis}}),
              "Single point drawn, not the quadric; dark, as its energies are undefined: the "
              "quadric is a cone (Û1 = Û2 = 0)");
}

TEST(SurfaceConditionTextTest, TellsAllSurfacesAndAllCausesApart) {
    std::set<QString> texts;
    for (const Drawn drawn :
         {Drawn::unitHyperboloid, Drawn::rounded, Drawn::point, Drawn::nothing}) {
        for (const Cause cause : {Cause::equalK1K2, Cause::zeroK13, Cause::zeroK23, Cause::zeroUHat,
                                  Cause::zeroSigma, Cause::uHatOnThirdAxis, Cause::vanishingK}) {
            texts.insert(SurfaceConditionText::of({drawn, {cause}}));
        }
    }
    EXPECT_EQ(texts.size(), 28U);
}

} // namespace
