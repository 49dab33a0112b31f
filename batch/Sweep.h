#pragma once

#include "hyperboloid/HyperboloidParameters.h"

#include <string>
#include <string_view>
#include <vector>

/** A parameter and the values that it takes one after the other. */
struct Sweep {
    const HyperboloidParameter* parameter;
    std::vector<double> values;

    /**
     * Reads NAME=START:STOP:COUNT, COUNT values at equal distances from START to STOP. A value is
     * the number that its text shows: twelve significant digits at most.
     *
     * Throws std::invalid_argument, saying what is wrong, for a text of another form, an unknown
     * name, a value that is not admitted.
     */
    static Sweep read(std::string_view text);
};

/** The sets that sweeps make of one set: their product, the last sweep the fastest; at least one.
 */
std::vector<HyperboloidParameters> setsOf(const HyperboloidParameters& base,
                                          const std::vector<Sweep>& sweeps);
