#include "batch/Sweep.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

std::string refusalOf(const char* text) {
    try {
        Sweep::read(text);
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return "taken";
}

} // namespace

TEST(Sweep, GoesFromStartToStopAtEqualDistances) {
    const Sweep sweep = Sweep::read("K13=-0.5:0.5:5");
    EXPECT_EQ(sweep.parameter->name, "K13");
    EXPECT_EQ(sweep.values, (std::vector<double>{-0.5, -0.25, 0, 0.25, 0.5}));
    EXPECT_EQ(Sweep::read("K3=2.75:1.5:3").values, (std::vector<double>{2.75, 2.125, 1.5}));
    EXPECT_EQ(Sweep::read("K1=0.625:9:1").values, std::vector<double>{0.625});
}

TEST(Sweep, ValuesAreWhatTheirTextsShow) {
    const std::vector<double> values = Sweep::read("K13=-0.3:0.3:7").values;
    EXPECT_EQ(values, (std::vector<double>{-0.3, -0.2, -0.1, 0, 0.1, 0.2, 0.3}));
    EXPECT_EQ(Sweep::read("K13=-0.2:0.4:7").values[2], 0);
    EXPECT_EQ(Sweep::read("K13=0:0.3:4").values[1], 0.1);
}

TEST(Sweep, EndsStayAsTheyAreGiven) {
    EXPECT_EQ(Sweep::read("K13=0.1234567890123456:0.9876543210987654:3").values,
              (std::vector<double>{0.1234567890123456, 0.555555555056, 0.9876543210987654}));
    EXPECT_EQ(Sweep::read("K13=0.1234567890123456:9:1").values,
              std::vector<double>{0.1234567890123456});
    EXPECT_EQ(refusalOf("K13=0.1234567890123456:0.1234567890123456:2"),
              "K13=0.1234567890123456:0.1234567890123456:2 takes the value 0.1234567890123456 more "
              "than once");
}

TEST(Sweep, WhatIsNoSweepIsRefusedWithTheReason) {
    EXPECT_EQ(refusalOf("K13"), "K13 is not NAME=START:STOP:COUNT");
    for (const std::string text : {"K13=1:2", "K13=0:1:3:9", "K13=K3=0:1:3"}) {
        EXPECT_EQ(refusalOf(text.c_str()), text + " is not NAME=START:STOP:COUNT");
    }
    EXPECT_EQ(refusalOf("K14=1:2:3"), "There is no parameter K14");
    EXPECT_EQ(refusalOf("K13=a:2:3"), "a is no number");
    EXPECT_EQ(refusalOf("K13=1:2:0"), "0 is no number of values");
    EXPECT_EQ(refusalOf("K13=1:2:1.5"), "1.5 is no number of values");
    EXPECT_EQ(refusalOf("K1=0:2:3"), "K1 = 0 is not in 0.01 to 100");
    EXPECT_EQ(refusalOf("rows=5:6:3"), "rows = 5.5 is no whole number");
    EXPECT_EQ(refusalOf("K13=0.375:0.375:2"),
              "K13=0.375:0.375:2 takes the value 0.375 more than once");
    EXPECT_EQ(refusalOf("K13=0.5:0.500000000001:4"),
              "K13=0.5:0.500000000001:4 takes the value 0.5 more than once")
        << "once it is rounded";
    EXPECT_EQ(refusalOf("K13=0:1:1000001"), "1000001 is no number of values");
    EXPECT_EQ(Sweep::read("K13=0:1:1000000").values.size(), 1000000U);
}

TEST(Sweep, SeveralMakeTheirProductTheLastTheFastest) {
    HyperboloidParameters base;
    base.K3 = 7.125;
    const auto sets = setsOf(base, {Sweep::read("K13=0.25:0.5:2"), Sweep::read("rows=5:7:3")});
    ASSERT_EQ(sets.size(), 6U);
    std::vector<std::pair<double, int>> values;
    for (const HyperboloidParameters& set : sets) {
        values.emplace_back(set.K13, set.verticalPrecision);
        EXPECT_EQ(set.K3, 7.125);
    }
    EXPECT_EQ(values, (std::vector<std::pair<double, int>>{
                          {0.25, 5}, {0.25, 6}, {0.25, 7}, {0.5, 5}, {0.5, 6}, {0.5, 7}}));
}

TEST(Sweep, SweptValuesOfASetAreToldInTheOrderOfTheSweeps) {
    const std::vector<Sweep> sweeps{Sweep::read("rows=5:7:3"), Sweep::read("K13=0.25:0.375:2")};
    EXPECT_EQ(sweptValues(setsOf({}, sweeps)[3], sweeps), "rows = 6, K13 = 0.375");
    EXPECT_EQ(sweptValues({}, {}), "");
}

TEST(Sweep, WithoutAnyThereIsTheOneSet) {
    EXPECT_EQ(setsOf({}, {}).size(), 1U);
}
