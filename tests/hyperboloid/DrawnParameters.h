#pragma once

#include "hyperboloid/HyperboloidParameters.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <random>
#include <vector>

/** One surface as the user can ask for it: everything that its generation depends on. */
struct DrawnParameters {
    HyperboloidParameters p;
    double saturation;
    double lightness;
    /** Whether the surface before this one lay along the second axis: degenerate ones keep it. */
    bool previouslySwapped;
};

inline std::ostream& operator<<(std::ostream& out, const DrawnParameters& drawn) {
    for (const HyperboloidParameter& parameter : HyperboloidParameters::all()) {
        out << parameter.name << " " << parameter.valueIn(drawn.p) << ", ";
    }
    return out << "saturation " << drawn.saturation << ", lightness " << drawn.lightness
               << ", previously swapped " << drawn.previouslySwapped;
}

/**
 * Draws parameters over the full ranges that the user can enter, and keeps those that are accepted.
 *
 * Only the generator's own numbers are used: what a distribution of the library makes of them is
 * not the same everywhere.
 */
class ParameterDraw {
public:
    explicit ParameterDraw(std::uint32_t seed)
        : random(seed) {}

    /** The next accepted parameters, on a grid of any shape up to the given fineness. */
    DrawnParameters next(int finest) {
        DrawnParameters drawn{};
        do {
            drawn.p = (this->*kinds[below(kinds.size())])();
        } while (drawn.p.brokenCondition() != HyperboloidCondition::none);
        drawn.p.horizontalPrecision = gridSize(&Set::horizontalPrecision, finest);
        drawn.p.verticalPrecision = gridSize(&Set::verticalPrecision, finest);
        for (double Set::*size : {&Set::pointRadius, &Set::u3constRange, &Set::u3axisRange,
                                  &Set::u3constRadius, &Set::u3axisRadius}) {
            drawn.p.*size = anywhere(size);
        }
        drawn.saturation = share();
        drawn.lightness = share();
        drawn.previouslySwapped = below(2) == 1;
        return drawn;
    }

private:
    using Set = HyperboloidParameters;

    /** K and uHat. */
    static constexpr std::array<double Set::*, 8> shape{&Set::K1,  &Set::K2, &Set::K3, &Set::K13,
                                                        &Set::K23, &Set::U1, &Set::U2, &Set::U3};

    // Values are counted in the last digit that can be entered: for most, in hundredths.
    static double unitsPerOne(double Set::*member) {
        return std::pow(10.0, HyperboloidParameter::of(member).decimals);
    }
    static int unitsOf(double Set::*member, double value) {
        return static_cast<int>(std::lround(value * unitsPerOne(member)));
    }
    static int least(double Set::*member) {
        return unitsOf(member, HyperboloidParameter::of(member).minimum);
    }
    static int greatest(double Set::*member) {
        return unitsOf(member, HyperboloidParameter::of(member).maximum);
    }
    static double fromUnits(double Set::*member, int units) { return units / unitsPerOne(member); }

    std::size_t below(std::size_t bound) { return random() % bound; }
    int between(int lowest, int highest) {
        return lowest + static_cast<int>(below(static_cast<std::size_t>(highest - lowest) + 1));
    }

    double anywhere(double Set::*member) {
        return fromUnits(member, between(least(member), greatest(member)));
    }

    /** All orders of magnitude alike, on both sides of 0 where the range has two. */
    double ofAnySize(double Set::*member) {
        constexpr double thousandths = 1000.0;
        const double orders = std::log10(greatest(member)) * thousandths;
        const double exponent = between(0, static_cast<int>(std::lround(orders))) / thousandths;
        const int units = static_cast<int>(std::pow(10.0, exponent));
        const bool isNegative = least(member) < 0 && below(2) == 0;
        return fromUnits(member, isNegative ? -units : units);
    }

    /** The ends of the range and what lies next to them, and the values that make terms vanish. */
    double fromEdge(double Set::*member) {
        const int one = unitsOf(member, 1.0);
        std::vector<int> edges{least(member), least(member) + 1,    one,
                               3 * one / 2,   greatest(member) - 1, greatest(member)};
        if (least(member) < 0) {
            edges.insert(edges.end(), {-one, -1, 0, 1});
        }
        return fromUnits(member, edges[below(edges.size())]);
    }

    /** K and uHat, each drawn in the same way; the rest as the program starts with it. */
    HyperboloidParameters shapeFrom(double (ParameterDraw::*draw)(double Set::*)) {
        HyperboloidParameters p;
        for (double Set::*member : shape) {
            p.*member = (this->*draw)(member);
        }
        return p;
    }

    HyperboloidParameters evenly() { return shapeFrom(&ParameterDraw::anywhere); }
    HyperboloidParameters fromEdges() { return shapeFrom(&ParameterDraw::fromEdge); }
    HyperboloidParameters fromAllSizes() { return shapeFrom(&ParameterDraw::ofAnySize); }

    /** K1 - K2 is next to nothing: the numbers derived from it become as large as they can. */
    HyperboloidParameters nearlyRound() {
        HyperboloidParameters p = fromAllSizes();
        const int largest = greatest(&Set::K2);
        const int K2 = std::min(unitsOf(&Set::K1, p.K1) + between(1, 3), largest);
        p.K1 = std::min(p.K1, fromUnits(&Set::K1, largest - 1));
        p.K2 = fromUnits(&Set::K2, K2);
        return p;
    }

    /** K1 = K2, a zero in the last column of K, uHat at the origin, and these together. */
    HyperboloidParameters degenerate() {
        HyperboloidParameters p = fromAllSizes();
        const std::size_t what = 1 + below(15);
        if ((what & 1U) != 0) {
            p.K2 = p.K1;
        }
        if ((what & 2U) != 0) {
            p.K13 = 0.0;
        }
        if ((what & 4U) != 0) {
            p.K23 = 0.0;
        }
        if ((what & 8U) != 0) {
            p.U1 = p.U2 = p.U3 = 0.0;
        }
        return p;
    }

    /** uHat on the third axis: a cone, and what is left of it is the sum of roundings. */
    HyperboloidParameters cone() {
        HyperboloidParameters p = fromAllSizes();
        p.U1 = p.U2 = 0.0;
        return p;
    }

    /** Half of the grids are small, and every tenth is as coarse or as fine as can be. */
    int gridSize(int Set::*member, int finest) {
        const auto coarsest = static_cast<int>(HyperboloidParameter::of(member).minimum);
        switch (below(10)) {
        case 0:
            return coarsest;
        case 1:
            return finest;
        case 2:
        case 3:
        case 4:
            return between(coarsest, finest);
        default:
            return between(coarsest, 16);
        }
    }

    /** A setting of the appearance, which is whole percents, often none or all. */
    double share() {
        const std::size_t percents = below(121);
        return percents > 110 ? 0.0
                              : std::min<double>(static_cast<double>(percents), 100.0) / 100.0;
    }

    using Kind = HyperboloidParameters (ParameterDraw::*)();
    static constexpr std::array<Kind, 6> kinds{
        &ParameterDraw::evenly,      &ParameterDraw::fromEdges,  &ParameterDraw::fromAllSizes,
        &ParameterDraw::nearlyRound, &ParameterDraw::degenerate, &ParameterDraw::cone};

    std::mt19937 random;
};
