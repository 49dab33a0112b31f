#pragma once

#include <array>
#include <cstddef>
#include <string_view>

class Helix;

/**
 * One of the five values that a user chooses for how a helix is drawn. Each is a whole number of
 * steps; its start value is that of a new Helix.
 */
struct HelixParameter {
    /** For example "tube-radius". */
    std::string_view name;
    /** What it is, in a few words. */
    std::string_view meaning;
    /** The least and the greatest value, in steps. */
    int minimum;
    int maximum;
    /** 1 for whole numbers. */
    double stepsPerUnit;
    double (*valueIn)(const Helix& helix);
    /** Stores the value; of the counts init_tables() must follow, see Helix. */
    void (*setIn)(Helix& helix, double value);

    /** Steps of the tube radius and the ribbon range per unit of length. */
    static constexpr double lengthSteps = 10000.0;

    static constexpr std::size_t count = 5;

    /** Tube radius, ribbon range, turns, line precision, tube precision. */
    static const std::array<HelixParameter, count>& all();
};
