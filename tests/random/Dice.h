#pragma once

#include <cstdint>
#include <random>
#include <type_traits>

/** What a random user decides by: the same seed gives the same decisions on every machine. */
class Dice {
public:
    explicit Dice(std::uint32_t seed)
        : engine(seed) {}

    /** A whole number from 0 to count - 1. */
    int below(int count) { return static_cast<int>(engine() % static_cast<unsigned int>(count)); }

    /** A whole number from lowest to highest, both included. */
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }

    /** A multiple of 0.01 from lowest to highest. */
    double hundredth(double lowest, double highest) {
        constexpr double perUnit = 100;
        return between(static_cast<int>(lowest * perUnit), static_cast<int>(highest * perUnit)) /
               perUnit;
    }

    /** True in so many of a hundred cases. */
    bool percent(int share) { return below(100) < share; }

    template <typename Container>
    auto& oneOf(Container&& choices) {
        using Index = std::decay_t<decltype(choices.size())>;
        return choices[static_cast<Index>(below(static_cast<int>(choices.size())))];
    }

private:
    std::mt19937 engine;
};
