#include "batch/Numbers.h"

#include <gtest/gtest.h>

TEST(Numbers, AreReadWholeOrNotAtAll) {
    EXPECT_EQ(Numbers::read("-0.375"), -0.375);
    EXPECT_EQ(Numbers::read("1e-3"), 0.001);
    for (const char* text : {"", "1,5", "0x10", "nan", "inf", "1.5 ", " 1.5", "1.5.2", "1e999"}) {
        EXPECT_EQ(Numbers::read(text), std::nullopt) << text;
    }
    EXPECT_EQ(Numbers::readWhole("-17"), -17);
    EXPECT_EQ(Numbers::readWhole("17.0"), std::nullopt);
    EXPECT_EQ(Numbers::readWhole("99999999999"), std::nullopt);
}

TEST(Numbers, AreWrittenAsShortAsTheyCanBeReadBack) {
    EXPECT_EQ(Numbers::text(0.1), "0.1");
    EXPECT_EQ(Numbers::text(-64), "-64");
    EXPECT_EQ(Numbers::text(0.30000000000000004), "0.30000000000000004");
}

TEST(Numbers, AreRoundedToWhatSoManyDigitsShow) {
    EXPECT_EQ(Numbers::rounded(0.30000000000000004, 12), 0.3);
    EXPECT_EQ(Numbers::rounded(-123.456789, 5), -123.46);
    EXPECT_EQ(Numbers::rounded(0, 12), 0);
}

TEST(Numbers, TextsAreSplitAtEverySeparator) {
    using Parts = std::vector<std::string_view>;
    EXPECT_EQ(Numbers::split("1,,3", ','), (Parts{"1", "", "3"}));
    EXPECT_EQ(Numbers::split("", ','), Parts{""});
}
