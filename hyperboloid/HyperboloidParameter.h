#pragma once

#include <string_view>
#include <variant>

struct HyperboloidParameters;

/** One of the fifteen parameters: where it stands in a set, and what can be entered for it. */
struct HyperboloidParameter {
    using Member = std::variant<double HyperboloidParameters::*, int HyperboloidParameters::*>;

    /** For example "K13". */
    std::string_view name;
    /** What it is, in a few words. */
    std::string_view meaning;
    Member member;
    /** The least and the greatest value that can be entered. */
    double minimum;
    double maximum;
    /** Digits after the decimal point that can be entered; 0 for a whole number. */
    int decimals;
    /** The difference that one press of an arrow key makes. */
    double step;
    /** Whether it is a length, in units of the coordinates of the space that is shown. */
    bool isLength;

    /** Whether a value lies in the range, and is whole where a whole number is due. */
    [[nodiscard]] bool admits(double value) const;
    /** The value in a set; a whole number is widened. */
    [[nodiscard]] double valueIn(const HyperboloidParameters& set) const;
    /** Sets the value in a set; for a whole number the value is truncated. */
    void setValueIn(HyperboloidParameters& set, double value) const;
    /** What is known of a member. */
    static const HyperboloidParameter& of(Member member);
    /** The parameter of a name; std::invalid_argument when there is none. */
    static const HyperboloidParameter& named(std::string_view name);
};
