#include "app/SurfaceConditionText.h"

#include <gtest/gtest.h>
#include <map>
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
    EXPECT_EQ(SurfaceConditionText::of({Drawn::rounded, {Cause::vanishingK}}),
              "Shaped by rounding, not the quadric: K1·K23·Û1 ≈ K2·K13·Û2 (a cone)");
    EXPECT_EQ(SurfaceConditionText::of({Drawn::unitHyperboloid, {Cause::zeroSigma}}),
              "Unit hyperboloid, not the quadric: K1·K23·Û1 + K2·K13·Û2 + 2·K13·K23·Û3 = 0");
}

TEST(SurfaceConditionTextTest, ExplainsWhatEachSurfaceMeansForWhatIsSeen) {
    const std::map<Drawn, QString> explanations{
        {Drawn::unitHyperboloid,
         "The hyperboloid with semi-axes 1 is drawn in the quadric's place."},
        {Drawn::rounded, "The quadric is so nearly a cone that rounding decides what is drawn: "
                         "its size and its colours mean nothing."},
        {Drawn::point, "The quadric is so nearly a cone that all its vertices are rounded to its "
                       "centre: their energies are undefined, their colour means nothing."},
        {Drawn::nothing, "The vertices have no finite coordinates."}};
    for (const auto& [drawn, text] : explanations) {
        EXPECT_EQ(SurfaceConditionText::explanation({drawn, {Cause::vanishingK}}), text);
    }
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
