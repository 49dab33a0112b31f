#include "tests/random/Shrinking.h"

#include <gtest/gtest.h>
#include <numeric>

namespace {

using Steps = std::vector<int>;

Steps numbersTo(int count) {
    Steps steps(static_cast<std::size_t>(count));
    std::iota(steps.begin(), steps.end(), 0);
    return steps;
}

bool contains(const Steps& steps, int step) {
    return std::find(steps.begin(), steps.end(), step) != steps.end();
}

} // namespace

TEST(Shrinking, KeepsExactlyTheStepsThatAreNeededInTheirOrder) {
    const auto fails = [](const Steps& steps) {
        return contains(steps, 17) && contains(steps, 230) && contains(steps, 231);
    };
    EXPECT_EQ(Shrinking::shrink<int>(numbersTo(300), fails, 1000), (Steps{17, 230, 231}));
}

TEST(Shrinking, FindsASingleStep) {
    const auto fails = [](const Steps& steps) {
        return contains(steps, 299);
    };
    EXPECT_EQ(Shrinking::shrink<int>(numbersTo(300), fails, 1000), Steps{299});
}

TEST(Shrinking, LeavesNothingWhenNoStepIsNeeded) {
    EXPECT_TRUE(Shrinking::shrink<int>(
                    numbersTo(3), [](const Steps&) { return true; }, 100)
                    .empty());
}

TEST(Shrinking, KeepsAFailingSequenceWhenTheAttemptsEnd) {
    int asked = 0;
    const auto fails = [&](const Steps& steps) {
        ++asked;
        return contains(steps, 5) && contains(steps, 250);
    };
    const Steps shrunk = Shrinking::shrink<int>(numbersTo(300), fails, 4);
    EXPECT_EQ(asked, 4);
    EXPECT_LE(shrunk.size(), 300U);
    EXPECT_TRUE(contains(shrunk, 5) && contains(shrunk, 250));
}
