#pragma once

#include "hyperboloid/HyperboloidParameter.h"

#include <array>
#include <cstddef>
#include <string_view>

class Hyperboloid;

/**
 * The conditions on K1, K2, K3, K13 and K23, in the order in which they are checked. Their numbers
 * are those that the main window has always told them apart by.
 */
enum class HyperboloidCondition {
    /** K13² / K1 + K23² / K2 < K3 */
    quadric = 2,
    /** K1 <= K2 */
    order = 1,
    /** All conditions hold. */
    none = 0
};

/** A condition as a formula in UTF-8, for example "K1 ≤ K2"; empty for none. */
std::string_view formulaOf(HyperboloidCondition condition);

/**
 * The fifteen values that shape the hyperboloid and its decorations. A new set holds the values
 * that the program starts with.
 */
struct HyperboloidParameters {
    double K1 = 1.0;
    double K2 = 1.5;
    double K3 = 1.0;
    double K13 = 0.5;
    double K23 = 0.5;
    double U1 = 1.0;
    double U2 = 0.0;
    double U3 = 0.0;
    /** Number of columns of the grid (angle). */
    int horizontalPrecision = 64;
    /** Number of rows of the grid (height). */
    int verticalPrecision = 64;
    /** Radius of the spheres that mark points. */
    double pointRadius = 0.3;
    /** Half the length of the lines of constant u3. */
    double u3constRange = 7.0;
    /** Half the length of the u3 axis. */
    double u3axisRange = 7.0;
    /** Radius of the tubes that the lines of constant u3 are drawn as. */
    double u3constRadius = 0.02;
    /** Radius of the tube that the u3 axis is drawn as. */
    double u3axisRadius = 0.03;

    /** How many values a set has. */
    static constexpr std::size_t count = 15;

    /** What is known of each value, in the order of the members. */
    static const std::array<HyperboloidParameter, count>& all();

    /** The values that a model has now; it keeps K as floats, which are widened. */
    static HyperboloidParameters of(const Hyperboloid& hyperboloid);

    /** The first condition that the values break; none when they are to be accepted. A NaN breaks
     * no condition. */
    [[nodiscard]] HyperboloidCondition brokenCondition() const;
};
