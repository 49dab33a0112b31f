#include "hyperboloid/HyperboloidParameters.h"

#include "tests/hyperboloid/ExposedHyperboloid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Set = HyperboloidParameters;

/** What a user meets of one parameter. */
struct Expected {
    const char* name;
    HyperboloidParameter::Member member;
    double startValue;
    double minimum;
    double maximum;
    int decimals;
    double step;
    bool isLength;
    const char* meaning;
};

const std::vector<Expected> everyParameter{
    {"K1", &Set::K1, 1.0, 0.01, 100.0, 2, 0.01, false, "first diagonal entry of the matrix K"},
    {"K2", &Set::K2, 1.5, 0.01, 100.0, 2, 0.01, false, "second diagonal entry of K"},
    {"K3", &Set::K3, 1.0, 0.0, 100.0, 2, 0.01, false, "third diagonal entry of K"},
    {"K13", &Set::K13, 0.5, -100.0, 100.0, 2, 0.01, false, "entry of K in row 1 and column 3"},
    {"K23", &Set::K23, 0.5, -100.0, 100.0, 2, 0.01, false, "entry of K in row 2 and column 3"},
    {"Uhat1", &Set::U1, 1.0, -100.0, 100.0, 2, 0.01, false,
     "first coordinate of the point uHat of U space"},
    {"Uhat2", &Set::U2, 0.0, -100.0, 100.0, 2, 0.01, false, "second coordinate of uHat"},
    {"Uhat3", &Set::U3, 0.0, -100.0, 100.0, 2, 0.01, false, "third coordinate of uHat"},
    {"columns", &Set::horizontalPrecision, 64.0, 5.0, 500.0, 0, 1.0, false,
     "columns of the grid, around the surface"},
    {"rows", &Set::verticalPrecision, 64.0, 5.0, 500.0, 0, 1.0, false,
     "rows of the grid, along the surface"},
    {"point-radius", &Set::pointRadius, 0.3, 0.0, 10.0, 2, 0.01, true,
     "radius of the spheres that mark points"},
    {"u3const-range", &Set::u3constRange, 7.0, 0.0, 100.0, 2, 0.01, true,
     "half the length of the lines of constant u3"},
    {"u3axis-range", &Set::u3axisRange, 7.0, 0.0, 100.0, 2, 0.01, true,
     "half the length of the u3 axis"},
    {"u3const-radius", &Set::u3constRadius, 0.02, 0.0, 100.0, 2, 0.01, true,
     "radius of the tubes of the lines of constant u3"},
    {"u3axis-radius", &Set::u3axisRadius, 0.03, 0.0, 100.0, 2, 0.01, true,
     "radius of the tube of the u3 axis"},
};

/** A set whose conditions hang on these five alone. */
HyperboloidCondition brokenBy(double K1, double K2, double K3, double K13, double K23) {
    return HyperboloidParameters{K1, K2, K3, K13, K23}.brokenCondition();
}

TEST(HyperboloidParameters, AreDeclaredWithNameRangeStepAndStartValue) {
    const Set startValues;
    ASSERT_EQ(Set::all().size(), everyParameter.size());
    for (std::size_t i = 0; i < everyParameter.size(); ++i) {
        const Expected& expected = everyParameter[i];
        const HyperboloidParameter& parameter = Set::all()[i];
        EXPECT_EQ(parameter.name, expected.name);
        EXPECT_TRUE(parameter.member == expected.member) << expected.name;
        EXPECT_EQ(parameter.valueIn(startValues), expected.startValue) << expected.name;
        EXPECT_EQ(parameter.minimum, expected.minimum) << expected.name;
        EXPECT_EQ(parameter.maximum, expected.maximum) << expected.name;
        EXPECT_EQ(parameter.decimals, expected.decimals) << expected.name;
        EXPECT_EQ(parameter.step, expected.step) << expected.name;
        EXPECT_EQ(parameter.isLength, expected.isLength) << expected.name;
        EXPECT_EQ(parameter.meaning, expected.meaning) << expected.name;
    }
}

TEST(HyperboloidParameters, StartWithValuesThatAreInRangeAndAccepted) {
    EXPECT_EQ(Set().brokenCondition(), HyperboloidCondition::none);
    for (const HyperboloidParameter& parameter : Set::all()) {
        EXPECT_GE(parameter.valueIn(Set()), parameter.minimum) << parameter.name;
        EXPECT_LE(parameter.valueIn(Set()), parameter.maximum) << parameter.name;
    }
}

TEST(HyperboloidParameters, AreFoundByTheirMembers) {
    for (const Expected& expected : everyParameter) {
        EXPECT_EQ(HyperboloidParameter::of(expected.member).name, expected.name);
    }
}

TEST(HyperboloidParameters, EachReadsAndWritesItsOwnMember) {
    std::set<std::string> names;
    for (const HyperboloidParameter& written : Set::all()) {
        names.insert(std::string(written.name));
        Set set;
        written.setValueIn(set, 41.0);
        for (const HyperboloidParameter& read : Set::all()) {
            const bool isWritten = read.name == written.name;
            EXPECT_EQ(read.valueIn(set), isWritten ? 41.0 : read.valueIn(Set()))
                << read.name << " after " << written.name;
        }
    }
    EXPECT_EQ(names.size(), 15U);
}

TEST(HyperboloidParameters, WholeNumbersAreTruncatedAndOthersKeptToTheLastBit) {
    Set set;
    HyperboloidParameter::of(&Set::horizontalPrecision).setValueIn(set, 17.9);
    EXPECT_EQ(set.horizontalPrecision, 17);
    HyperboloidParameter::of(&Set::K13).setValueIn(set, -0.7310585786300049);
    EXPECT_EQ(set.K13, -0.7310585786300049);
}

TEST(HyperboloidParameters, BreakTheQuadricConditionWhenTheSumReachesK3) {
    // 1.1^2 / 1 + 0.1^2 / 4 is above 1, and 0.1^2 / 1 + 1.1^2 / 4 below.
    EXPECT_EQ(brokenBy(1.0, 4.0, 1.0, 1.1, 0.1), HyperboloidCondition::quadric);
    EXPECT_EQ(brokenBy(1.0, 4.0, 1.0, 0.1, 1.1), HyperboloidCondition::none);
    // 0.5^2 / 1 + 1.5^2 / 3 is exactly 1.
    EXPECT_EQ(brokenBy(1.0, 3.0, 1.0, 0.5, 1.5), HyperboloidCondition::quadric);
    EXPECT_EQ(brokenBy(1.0, 3.0, 1.0000001, 0.5, 1.5), HyperboloidCondition::none);
    EXPECT_EQ(brokenBy(1.0, 3.0, 1.0, -0.5, -1.5), HyperboloidCondition::quadric);
}

TEST(HyperboloidParameters, BreakTheOrderConditionWhenK1IsAboveK2) {
    EXPECT_EQ(brokenBy(1.37, 1.36, 1.0, 0.5, 0.5), HyperboloidCondition::order);
    EXPECT_EQ(brokenBy(1.37, 1.37, 1.0, 0.5, 0.5), HyperboloidCondition::none);
    EXPECT_EQ(brokenBy(1.36, 1.37, 1.0, 0.5, 0.5), HyperboloidCondition::none);
}

TEST(HyperboloidParameters, ReportTheQuadricConditionBeforeTheOrder) {
    EXPECT_EQ(brokenBy(4.0, 1.0, 1.0, 0.1, 1.1), HyperboloidCondition::quadric);
    EXPECT_EQ(brokenBy(4.0, 1.0, 1.0, 1.1, 0.1), HyperboloidCondition::order);
}

TEST(HyperboloidParameters, DivideByZeroOnTheRefusingSide) {
    EXPECT_EQ(brokenBy(0.0, 4.0, 100.0, 0.1, 0.1), HyperboloidCondition::quadric);
    EXPECT_EQ(brokenBy(1.0, 4.0, 0.0, 0.0, 0.0), HyperboloidCondition::quadric);
}

TEST(HyperboloidParameters, ThatAreNotNumbersBreakNoCondition) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(brokenBy(nan, 4.0, 1.0, 1.1, 0.1), HyperboloidCondition::none);
    EXPECT_EQ(brokenBy(1.0, nan, 1.0, 1.1, 0.1), HyperboloidCondition::none);
    EXPECT_EQ(brokenBy(1.0, 4.0, nan, 1.1, 0.1), HyperboloidCondition::none);
    EXPECT_EQ(brokenBy(1.0, 4.0, 1.0, nan, 0.1), HyperboloidCondition::none);
    EXPECT_EQ(brokenBy(1.0, 4.0, 1.0, 1.1, nan), HyperboloidCondition::none);
    EXPECT_EQ(brokenBy(4.0, 1.0, nan, 1.1, 0.1), HyperboloidCondition::order);
}

TEST(HyperboloidParameters, OfAModelAreItsOwnWithKAndUHatAsFloats) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::XSPACE);
    const Set given{1.17, 2.23, 3.31,  0.41, -0.53, 0.67, -0.79, 0.83,
                    9,    14,   0.113, 5.27, 6.29,  0.37, 0.43};
    hyperboloid.setParameters(given);
    const Set read = Set::of(hyperboloid);
    for (std::size_t i = 0; i < Set::count; ++i) {
        const HyperboloidParameter& parameter = Set::all()[i];
        const double value = parameter.valueIn(given);
        EXPECT_EQ(parameter.valueIn(read), i < 8 ? double{static_cast<float>(value)} : value)
            << parameter.name;
    }
}

} // namespace

TEST(HyperboloidParameters, AdmitWhatLiesInTheRangeAndCountsThatAreWhole) {
    const HyperboloidParameter& k1 = HyperboloidParameter::named("K1");
    EXPECT_TRUE(k1.admits(0.01));
    EXPECT_TRUE(k1.admits(0.012345));
    EXPECT_TRUE(k1.admits(100));
    EXPECT_FALSE(k1.admits(0.00999));
    EXPECT_FALSE(k1.admits(100.001));
    EXPECT_FALSE(k1.admits(std::nan("")));
    const HyperboloidParameter& rows = HyperboloidParameter::named("rows");
    EXPECT_TRUE(rows.admits(17));
    EXPECT_FALSE(rows.admits(17.5));
}

TEST(HyperboloidParameters, AreFoundByTheirNames) {
    for (const HyperboloidParameter& parameter : HyperboloidParameters::all()) {
        EXPECT_EQ(&HyperboloidParameter::named(parameter.name), &parameter);
        EXPECT_FALSE(parameter.meaning.empty());
    }
    EXPECT_THROW(HyperboloidParameter::named("K14"), std::invalid_argument);
}
