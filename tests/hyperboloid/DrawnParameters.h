#pragma once

#include "tests/hyperboloid/OpenHyperboloid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <random>

/** One surface as the user can ask for it: everything that its generation depends on. */
struct DrawnParameters {
    KAndUHat p;
    int columns;
    int rows;
    double saturation;
    double lightness;
    double constRange;
    double axisRange;
    double constRadius;
    double axisRadius;
    /** Whether the surface before this one lay along the second axis: degenerate ones keep it. */
    bool previouslySwapped;
};

inline std::ostream& operator<<(std::ostream& out, const DrawnParameters& drawn) {
    const KAndUHat& p = drawn.p;
    return out << "KAndUHat{" << p.K1 << ", " << p.K2 << ", " << p.K3 << ", " << p.K13 << ", "
               << p.K23 << ", " << p.U1 << ", " << p.U2 << ", " << p.U3 << "}, grid "
               << drawn.columns << " x " << drawn.rows << ", saturation " << drawn.saturation
               << ", lightness " << drawn.lightness << ", ranges " << drawn.constRange << " and "
               << drawn.axisRange << ", radii " << drawn.constRadius << " and " << drawn.axisRadius
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
        } while (!isAccepted(drawn.p));
        drawn.columns = gridSize(finest);
        drawn.rows = gridSize(finest);
        drawn.saturation = share();
        drawn.lightness = share();
        drawn.constRange = positive(0);
        drawn.axisRange = positive(0);
        drawn.constRadius = positive(0);
        drawn.axisRadius = positive(0);
        drawn.previouslySwapped = below(2) == 1;
        return drawn;
    }

    /** The condition under which entered parameters are taken over. */
    static bool isAccepted(const KAndUHat& p) {
        return p.K13 * p.K13 / p.K1 + p.K23 * p.K23 / p.K2 < p.K3 && p.K1 <= p.K2;
    }

private:
    // All fields have two decimals: values are counted in hundredths.
    static constexpr int largest = 10000;
    static constexpr int smallestDivisor = 1;
    static constexpr int coarsestGrid = 5;

    static double fromHundredths(int value) { return value / 100.0; }

    std::size_t below(std::size_t bound) { return random() % bound; }
    int between(int lowest, int highest) {
        return lowest + static_cast<int>(below(static_cast<std::size_t>(highest - lowest) + 1));
    }

    double positive(int lowest) { return fromHundredths(between(lowest, largest)); }
    double any() { return fromHundredths(between(-largest, largest)); }

    /** All orders of magnitude alike. */
    double positiveOfAnySize() {
        const double exponent = between(0, 4000) / 1000.0;
        return fromHundredths(static_cast<int>(std::pow(10.0, exponent)));
    }
    double ofAnySize() { return below(2) == 1 ? positiveOfAnySize() : -positiveOfAnySize(); }

    /** The ends of a range and what lies next to them, and the values that make terms vanish. */
    double positiveEdge(int lowest) {
        const std::array<int, 6> edges{lowest, lowest + 1, 100, 150, largest - 1, largest};
        return fromHundredths(edges[below(edges.size())]);
    }
    double edge() {
        const std::array<int, 9> edges{-largest, 1 - largest, -100,        -1,     0,
                                       1,        100,         largest - 1, largest};
        return fromHundredths(edges[below(edges.size())]);
    }

    KAndUHat evenly() {
        return {positive(smallestDivisor),
                positive(smallestDivisor),
                positive(0),
                any(),
                any(),
                any(),
                any(),
                any()};
    }
    KAndUHat fromEdges() {
        return {positiveEdge(smallestDivisor),
                positiveEdge(smallestDivisor),
                positiveEdge(0),
                edge(),
                edge(),
                edge(),
                edge(),
                edge()};
    }
    KAndUHat fromAllSizes() {
        return {positiveOfAnySize(), positiveOfAnySize(), positiveOfAnySize(), ofAnySize(),
                ofAnySize(),         ofAnySize(),         ofAnySize(),         ofAnySize()};
    }
    /** K1 - K2 is next to nothing: the numbers derived from it become as large as they can. */
    KAndUHat nearlyRound() {
        KAndUHat p = fromAllSizes();
        p.K2 = fromHundredths(static_cast<int>(std::lround(p.K1 * 100.0)) + between(1, 3));
        if (p.K2 > fromHundredths(largest)) {
            p.K1 = fromHundredths(largest - 1);
            p.K2 = fromHundredths(largest);
        }
        return p;
    }
    /** K1 = K2, a zero in the last column of K, uHat at the origin, and these together. */
    KAndUHat degenerate() {
        KAndUHat p = fromAllSizes();
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
    KAndUHat cone() {
        KAndUHat p = fromAllSizes();
        p.U1 = p.U2 = 0.0;
        return p;
    }

    /** Half of the grids are small, and every tenth is as coarse or as fine as can be. */
    int gridSize(int finest) {
        switch (below(10)) {
        case 0:
            return coarsestGrid;
        case 1:
            return finest;
        case 2:
        case 3:
        case 4:
            return between(coarsestGrid, finest);
        default:
            return between(coarsestGrid, 16);
        }
    }

    /** A setting of the appearance, which is whole percents, often none or all. */
    double share() {
        const std::size_t percents = below(121);
        return percents > 110 ? 0.0
                              : std::min<double>(static_cast<double>(percents), 100.0) / 100.0;
    }

    using Kind = KAndUHat (ParameterDraw::*)();
    static constexpr std::array<Kind, 6> kinds{
        &ParameterDraw::evenly,      &ParameterDraw::fromEdges,  &ParameterDraw::fromAllSizes,
        &ParameterDraw::nearlyRound, &ParameterDraw::degenerate, &ParameterDraw::cone};

    std::mt19937 random;
};
