#include "tests/hyperboloid/DrawnParameters.h"
#include "tests/hyperboloid/ExposedHyperboloid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iostream>
#include <map>
#include <sstream>

namespace {

using Cause = SurfaceCondition::Cause;
using Drawn = SurfaceCondition::Drawn;
using Causes = std::vector<Cause>;

/** A model of X space on a small grid. */
class DrawnModel {
public:
    explicit DrawnModel(const HyperboloidParameters& parameters, bool previouslySwapped = true)
        : p(parameters)
        , model(startUp, Hyperboloid::XSPACE) {
        std::ostringstream text;
        std::streambuf* const screen = std::cerr.rdbuf(text.rdbuf());
        model.swapAxes = previouslySwapped;
        model.regenerate(p, 7, 6);
        std::cerr.rdbuf(screen);
    }

    [[nodiscard]] SurfaceCondition condition() const { return model.surfaceCondition(); }

    [[nodiscard]] float firstCoordinate() const { return model.vertices.front().x; }

    /** The largest share of k by which a vertex misses the quadric; NaN when one is nowhere. */
    [[nodiscard]] double worstMiss() const {
        // The model holds K in floats, which counts where K1 and K2 are nearly the same.
        const double K1 = model.getK(0);
        const double K2 = model.getK(1);
        const double product = static_cast<double>(model.getK(3)) * model.getK(4);
        const double square = (K1 - K2) * (K1 - K2);
        const double root = K2 * model.getK(3) * p.U2 - K1 * model.getK(4) * p.U1;
        const double k = root * root / (4.0 * product * square);
        double worst = 0.0;
        for (const FloatTriple& x : model.vertices) {
            const double value =
                (static_cast<double>(x.x) * x.x - static_cast<double>(x.y) * x.y) / 4.0 +
                product / square * x.z * x.z;
            const double miss = std::fabs(value / k - 1.0);
            worst = miss > worst || std::isnan(miss) ? miss : worst;
            if (std::isnan(worst)) {
                return worst;
            }
        }
        return worst;
    }

private:
    HyperboloidParameters p;
    ExposedHyperboloid model;
};

void expectCondition(const HyperboloidParameters& p, Drawn drawn, const Causes& causes) {
    SCOPED_TRACE(testing::Message() << "K13 " << p.K13 << ", K23 " << p.K23 << ", U " << p.U1 << " "
                                    << p.U2 << " " << p.U3);
    ASSERT_EQ(p.brokenCondition(), HyperboloidCondition::none);
    const SurfaceCondition condition = DrawnModel(p).condition();
    EXPECT_EQ(condition.drawn, drawn);
    EXPECT_EQ(condition.causes, causes);
}

TEST(SurfaceConditionTest, TheQuadricHasNoCauses) {
    for (const HyperboloidParameters& p :
         {startUp, unswapped,
          HyperboloidParameters{2.51, 3.27, 40.13, -0.79, 1.23, 0.41, -0.37, 0.19},
          HyperboloidParameters{99.99, 100.0, 100.0, 50.0, -50.0, 3.0, 100.0, -100.0}}) {
        expectCondition(p, Drawn::quadric, {});
    }
}

TEST(SurfaceConditionTest, NamesEveryZeroThatReplacesTheSurface) {
    expectCondition(withoutK13, Drawn::unitHyperboloid, {Cause::zeroK13});
    expectCondition(withoutK23, Drawn::unitHyperboloid, {Cause::zeroK23});
    expectCondition(withoutUHat, Drawn::unitHyperboloid, {Cause::zeroUHat});
    expectCondition({1.1, 1.7, 1.3, 0.0, 0.0, 0.0, 0.0, 0.0}, Drawn::unitHyperboloid,
                    {Cause::zeroK13, Cause::zeroK23, Cause::zeroUHat});
    // 1 * 0.5 * 2 + 2 * 0.5 * 3 + 2 * 0.5 * 0.5 * -8 = 0
    expectCondition({1.0, 2.0, 3.0, 0.5, 0.5, 2.0, 3.0, -8.0}, Drawn::unitHyperboloid,
                    {Cause::zeroSigma});
}

TEST(SurfaceConditionTest, NothingIsDrawnOfEqualK1AndK2WhateverElseIsZero) {
    expectCondition({1.5, 1.5, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0}, Drawn::nothing, {Cause::equalK1K2});
    expectCondition({1.5, 1.5, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0}, Drawn::nothing, {Cause::equalK1K2});
}

TEST(SurfaceConditionTest, AConeIsSaidWhateverItsRoundingsLeave) {
    expectCondition({1.0, 1.5, 1.0, 0.5, 0.5, 0.0, 0.0, 1.0}, Drawn::point,
                    {Cause::uHatOnThirdAxis});
    expectCondition({3.63, 86.89, 60.11, 0.14, -10.71, 0.0, 0.0, 13.77}, Drawn::rounded,
                    {Cause::uHatOnThirdAxis});
    expectCondition({0.02, 1.75, 69.34, 0.14, 3.58, 0.0, 0.0, -0.01}, Drawn::nothing,
                    {Cause::uHatOnThirdAxis});
    // 1.5 * 0.5 * 2 = 1 * 0.5 * 3
    expectCondition({1.0, 1.5, 1.0, 0.5, 0.5, 3.0, 2.0, 1.0}, Drawn::point, {Cause::vanishingK});
}

TEST(SurfaceConditionTest, AReplacementThatHappensToBeTheQuadricIsTheQuadric) {
    // b c + a d = 0, k = 1/4 and b d = -1/4: the semi-axes of the quadric are 1.
    constexpr HyperboloidParameters p{1.0, 2.0, 3.0, 0.5, 0.5, 0.0, 0.5, -1.0};
    EXPECT_EQ(DrawnModel(p, true).condition().drawn, Drawn::quadric);
    EXPECT_EQ(DrawnModel(p, false).condition().drawn, Drawn::unitHyperboloid);
    // Here only two of them are: the third is 1.25.
    expectCondition({1.0, 2.0, 3.0, 0.4, 0.4, 0.0, 0.5, -1.25}, Drawn::unitHyperboloid,
                    {Cause::zeroSigma});
}

TEST(SurfaceConditionTest, IsSaidExactlyWhenTheVerticesMissTheQuadric) {
    ParameterDraw draw(4);
    std::map<Drawn, int> counts;
    // Semi-axes that are off by 1 % have a k that is off by 2 %.
    constexpr double surelyClose = 0.0195;
    constexpr double surelyOff = 0.0205;
    for (int i = 0; i < 20000; ++i) {
        const DrawnParameters drawn = draw.next(6);
        SCOPED_TRACE(testing::Message() << drawn);
        const DrawnModel model(drawn.p, drawn.previouslySwapped);
        const SurfaceCondition condition = model.condition();
        ++counts[condition.drawn];
        const double miss = model.worstMiss();
        const bool isQuadric = condition.drawn == Drawn::quadric;
        ASSERT_EQ(condition.causes.empty(), isQuadric);
        if (miss < surelyClose) {
            ASSERT_TRUE(isQuadric) << miss;
        } else if (!(miss <= surelyOff)) {
            ASSERT_FALSE(isQuadric) << miss;
        }
        ASSERT_EQ(condition.drawn == Drawn::nothing, !std::isfinite(model.firstCoordinate()));
    }
    for (const Drawn each :
         {Drawn::quadric, Drawn::unitHyperboloid, Drawn::rounded, Drawn::point, Drawn::nothing}) {
        EXPECT_GE(counts[each], 10) << static_cast<int>(each);
    }
}

} // namespace
