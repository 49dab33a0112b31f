#pragma once

#include <array>
#include <string_view>
#include <variant>

class Hyperboloid;
struct HyperboloidParameter;

/** The conditions on K1, K2, K3, K13 and K23, in the order in which they are checked. */
enum class HyperboloidCondition {
    /** K13² / K1 + K23² / K2 < K3 */
    quadric,
    /** K1 <= K2 */
    order,
    /** All conditions hold. */
    none
};

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
    double u3constRadius = 0.02;
    double u3axisRadius = 0.03;

    /** How many values a set has. */
    static constexpr std::size_t count = 15;

    /** What is known of each value, in the order of the members. */
    static const std::array<HyperboloidParameter, count>& all();

    /** The values that a model has now. */
    static HyperboloidParameters of(const Hyperboloid& hyperboloid);

    /** The first condition that the values break; none when they are to be accepted. */
    [[nodiscard]] HyperboloidCondition brokenCondition() const;
};

/** One of the fifteen parameters: where it stands in a set, and what can be entered for it. */
struct HyperboloidParameter {
    using Member = std::variant<double HyperboloidParameters::*, int HyperboloidParameters::*>;

    /** For example "K13". */
    std::string_view name;
    Member member;
    /** The least and the greatest value that can be entered. */
    double minimum;
    double maximum;
    /** Digits after the decimal point that can be entered; 0 for a whole number. */
    int decimals;
    /** The difference that one press of an arrow key makes. */
    double step;

    /** The value in a set; a whole number is widened. */
    [[nodiscard]] double valueIn(const HyperboloidParameters& set) const;
    /** Sets the value in a set; for a whole number the value is truncated. */
    void setValueIn(HyperboloidParameters& set, double value) const;
    /** What is known of a member. */
    static const HyperboloidParameter& of(Member member);
};
