#include "hyperboloid/HyperboloidParameters.h"

#include "hyperboloid/Hyperboloid.h"

namespace {

using Set = HyperboloidParameters;

constexpr double largest = 100;
/** K1 and K2 are divided by. */
constexpr double leastDivisor = 0.01;
constexpr double largestPointRadius = 10;
constexpr double coarsestGrid = 5;
constexpr double finestGrid = 500;

constexpr HyperboloidParameter real(std::string_view name, std::string_view meaning,
                                    double Set::*member, double minimum, double maximum) {
    constexpr int decimals = 2;
    constexpr double step = 0.01;
    return {name, meaning, member, minimum, maximum, decimals, step, false};
}

constexpr HyperboloidParameter length(std::string_view name, std::string_view meaning,
                                      double Set::*member, double maximum) {
    HyperboloidParameter parameter = real(name, meaning, member, 0, maximum);
    parameter.isLength = true;
    return parameter;
}

constexpr HyperboloidParameter whole(std::string_view name, std::string_view meaning,
                                     int Set::*member, double minimum, double maximum) {
    return {name, meaning, member, minimum, maximum, 0, 1, false};
}

constexpr std::array<HyperboloidParameter, Set::count> parameters{
    real("K1", "first diagonal entry of the matrix K", &Set::K1, leastDivisor, largest),
    real("K2", "second diagonal entry of K", &Set::K2, leastDivisor, largest),
    real("K3", "third diagonal entry of K", &Set::K3, 0, largest),
    real("K13", "entry of K in row 1 and column 3", &Set::K13, -largest, largest),
    real("K23", "entry of K in row 2 and column 3", &Set::K23, -largest, largest),
    real("Uhat1", "first coordinate of the point uHat of U space", &Set::U1, -largest, largest),
    real("Uhat2", "second coordinate of uHat", &Set::U2, -largest, largest),
    real("Uhat3", "third coordinate of uHat", &Set::U3, -largest, largest),
    whole("columns", "columns of the grid, around the surface", &Set::horizontalPrecision,
          coarsestGrid, finestGrid),
    whole("rows", "rows of the grid, along the surface", &Set::verticalPrecision, coarsestGrid,
          finestGrid),
    length("point-radius", "radius of the spheres that mark points", &Set::pointRadius,
           largestPointRadius),
    length("u3const-range", "half the length of the lines of constant u3", &Set::u3constRange,
           largest),
    length("u3axis-range", "half the length of the u3 axis", &Set::u3axisRange, largest),
    length("u3const-radius", "radius of the tubes of the lines of constant u3", &Set::u3constRadius,
           largest),
    length("u3axis-radius", "radius of the tube of the u3 axis", &Set::u3axisRadius, largest),
};

} // namespace

std::string_view formulaOf(HyperboloidCondition condition) {
    switch (condition) {
    case HyperboloidCondition::quadric:
        return "K13²/K1 + K23²/K2 < K3";
    case HyperboloidCondition::order:
        return "K1 ≤ K2";
    default:
        return {};
    }
}

const std::array<HyperboloidParameter, HyperboloidParameters::count>& HyperboloidParameters::all() {
    return parameters;
}

HyperboloidParameters HyperboloidParameters::of(const Hyperboloid& hyperboloid) {
    HyperboloidParameters set;
    set.K1 = hyperboloid.getK(0);
    set.K2 = hyperboloid.getK(1);
    set.K3 = hyperboloid.getK(2);
    set.K13 = hyperboloid.getK(3);
    set.K23 = hyperboloid.getK(4);
    set.U1 = hyperboloid.getU(0);
    set.U2 = hyperboloid.getU(1);
    set.U3 = hyperboloid.getU(2);
    set.horizontalPrecision = static_cast<int>(hyperboloid.getPrec(0));
    set.verticalPrecision = static_cast<int>(hyperboloid.getPrec(1));
    set.pointRadius = hyperboloid.getSpR();
    set.u3constRange = hyperboloid.getu3const_range();
    set.u3axisRange = hyperboloid.getu3axis_range();
    set.u3constRadius = hyperboloid.getu3const_radius();
    set.u3axisRadius = hyperboloid.getu3axis_radius();
    return set;
}

HyperboloidCondition HyperboloidParameters::brokenCondition() const {
    const double s = K13 * K13 / K1 + K23 * K23 / K2;
    if (s >= K3) {
        return HyperboloidCondition::quadric;
    }
    return K1 > K2 ? HyperboloidCondition::order : HyperboloidCondition::none;
}
