#include "batch/FileName.h"

#include <gtest/gtest.h>
#include <stdexcept>

TEST(FileName, BracesStandForValues) {
    HyperboloidParameters set;
    set.K13 = -0.375;
    set.verticalPrecision = 17;
    EXPECT_EQ(FileName::of("a{K13}/b{rows}-{K13}.png", set), "a-0.375/b17--0.375.png");
    EXPECT_EQ(FileName::of("plain.txt", set), "plain.txt");
}

TEST(FileName, NamesInBracesAreThoseOfParameters) {
    const auto named = FileName::parametersIn("{K13}{point-radius}.txt");
    ASSERT_EQ(named.size(), 2U);
    EXPECT_EQ(named[0]->name, "K13");
    EXPECT_EQ(named[1]->name, "point-radius");
    EXPECT_THROW(FileName::parametersIn("{K14}.txt"), std::invalid_argument);
    EXPECT_THROW(FileName::parametersIn("{}.txt"), std::invalid_argument);
    for (const char* unpaired : {"plain", "}K13{", "{K13", "K13}"}) {
        EXPECT_TRUE(FileName::parametersIn(unpaired).empty()) << unpaired;
    }
}
