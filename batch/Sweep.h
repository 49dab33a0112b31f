#pragma once

#include "hyperboloid/HyperboloidParameters.h"

#include <string>
#include <string_view>
#include <vector>

/** How many sets sweeps make at most, a single one or several: more than anybody waits for. */
constexpr int mostSets = 1000000;

/** A parameter and the values that it takes one after the other. */
struct Sweep {
    const HyperboloidParameter* parameter;
    std::vector<double> values;

    /**
     * Reads NAME=START:STOP:COUNT, COUNT values at equal distances from START to STOP. A value
     * between them has twelve significant digits at most.
     *
     * Throws std::invalid_argument, saying what is wrong, for a text of another form, an unknown
     * name, a value that is not admitted or comes twice.
     */
    static Sweep read(std::string_view text);
};

/** The swept values of a set, for example "K13 = 0.5, K23 = 0.25"; empty without sweeps. */
std::string sweptValues(const HyperboloidParameters& set, const std::vector<Sweep>& sweeps);

/**
 * The sets that sweeps make of one set: their product, the last sweep the fastest; at least one.
 * The product must not have more than mostSets.
 */
std::vector<HyperboloidParameters> setsOf(const HyperboloidParameters& base,
                                          const std::vector<Sweep>& sweeps);
