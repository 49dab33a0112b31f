#include "app/NumberText.h"

#include <QLocale>
#include <gtest/gtest.h>
#include <vector>

namespace {

const std::vector<QLocale> locales{QLocale::c(), QLocale("de_DE"), QLocale("fr_FR"),
                                   QLocale("ar_EG"), QLocale("sv_SE")};

struct Entered {
    const char* text;
    double value;
};

} // namespace

TEST(NumberTextTest, PointAndCommaAreTheDecimalPointInEveryLocale) {
    const std::vector<Entered> all{{"2.5", 2.5},       {"2,5", 2.5},     {"-37.25", -37.25},
                                   {"-37,25", -37.25}, {"+1,5", 1.5},    {",75", 0.75},
                                   {".75", 0.75},      {"3,", 3},        {"3.", 3},
                                   {" 2,5 ", 2.5},     {"\t7.25", 7.25}, {"0,170", 0.17},
                                   {"1e2", 100},       {"1e+2", 100},    {"2,5E+1", 25},
                                   {"1,5E1", 15},      {"25e-1", 2.5},   {"\u00a01,5\u00a0", 1.5}};
    for (const QLocale& locale : locales) {
        for (const Entered& entered : all) {
            EXPECT_EQ(NumberText::decimal(entered.text, locale), entered.value)
                << qPrintable(locale.name()) << ": " << entered.text;
        }
    }
}

TEST(NumberTextTest, ReadsWhatTheLocaleWrites) {
    for (const QLocale& locale : locales) {
        for (const double value : {-37.25, 0.17, 91.5}) {
            EXPECT_EQ(NumberText::decimal(locale.toString(value, 'f', 2), locale), value);
        }
        EXPECT_EQ(NumberText::whole(locale.toString(-427), locale), -427);
    }
}

TEST(NumberTextTest, WhatIsNoNumberIsNotReadAsAnother) {
    for (const QLocale& locale : locales) {
        for (const char* text :
             {"",           " ",       "-",       "+",      ".",     ",",    "e2",    "1e",
              "1e+",        "1,000.5", "1.000,5", "1.2.5",  "1,2,5", "1..5", "1 000", "1\u00a0000",
              "1\u202f000", "1'000",   "2;5",     "1x2",    "--5",   "5-",   "1e2.5", "0x10",
              "inf",        "nan",     "1e999",   "1e-400", "2²",    "10³",  "x₂",    "5①"}) {
            EXPECT_EQ(NumberText::decimal(text, locale), std::nullopt)
                << qPrintable(locale.name()) << ": " << text;
        }
    }
}

TEST(NumberTextTest, WholeNumbersHaveNeitherDecimalsNorGroups) {
    for (const QLocale& locale : locales) {
        EXPECT_EQ(NumberText::whole(" 427 ", locale), 427);
        EXPECT_EQ(NumberText::whole("-31", locale), -31);
        EXPECT_EQ(NumberText::whole("+31", locale), 31);
        for (const char* text :
             {"", "-", "2.5", "2,5", "2,", "1 000", "1,000", "1.000", "1e2", "99999999999"}) {
            EXPECT_EQ(NumberText::whole(text, locale), std::nullopt)
                << qPrintable(locale.name()) << ": " << text;
        }
    }
}
