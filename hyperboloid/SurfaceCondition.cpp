#include "hyperboloid/SurfaceCondition.h"

#include "hyperboloid/HyperboloidCoefficients.h"

#include <algorithm>
#include <cmath>

namespace {

using Cause = SurfaceCondition::Cause;
using Drawn = SurfaceCondition::Drawn;
using Model = SurfaceCondition::Model;

/** The parameters by their names, in double. */
struct Named {
    explicit Named(const Model& model)
        : K1(model.K[0])
        , K2(model.K[1])
        , K13(model.K[3])
        , K23(model.K[4])
        , U1(model.uHat.GetCoord(0))
        , U2(model.uHat.GetCoord(1))
        , U3(model.uHat.GetCoord(2)) {}

    double K1, K2, K13, K23, U1, U2, U3;
};

bool isClose(double drawn, double exact) {
    constexpr double visibleShare = 0.01;
    return std::fabs(drawn - exact) <= visibleShare * exact;
}

/** Whether axis and semi-axes are those of the quadric, computed without the model's a, b, c, d. */
bool isQuadric(const Model& model) {
    const Named p(model);
    const double product = p.K13 * p.K23;
    const double difference = std::fabs(p.K2 * p.K13 * p.U2 - p.K1 * p.K23 * p.U1);
    const double ring = difference / (std::sqrt(std::fabs(product)) * std::fabs(p.K1 - p.K2));
    const double third = difference / (2.0 * std::fabs(product));
    // A cone has no semi-axes that could be right.
    return difference > 0.0 && std::isfinite(ring) && model.swapAxes == (product > 0.0) &&
           isClose(model.semiAxis[0], ring) && isClose(model.semiAxis[1], ring) &&
           isClose(model.semiAxis[2], third);
}

Drawn notQuadric(const Model& model) {
    const auto& semiAxis = model.semiAxis;
    if (std::any_of(semiAxis.begin(), semiAxis.end(), [](float s) { return !std::isfinite(s); })) {
        return Drawn::nothing;
    }
    if (!HyperboloidCoefficients::lambda(HyperboloidCoefficients::pnas(model.K, model.uHat))) {
        return Drawn::unitHyperboloid;
    }
    return std::all_of(semiAxis.begin(), semiAxis.end(), [](float s) { return s == 0.0F; })
               ? Drawn::point
               : Drawn::rounded;
}

std::vector<Cause> causesOfReplacement(const Named& p) {
    std::vector<Cause> causes;
    if (p.K13 == 0.0) {
        causes.push_back(Cause::zeroK13);
    }
    if (p.K23 == 0.0) {
        causes.push_back(Cause::zeroK23);
    }
    if (p.U1 == 0.0 && p.U2 == 0.0 && p.U3 == 0.0) {
        causes.push_back(Cause::zeroUHat);
    }
    if (causes.empty()) {
        causes.push_back(Cause::zeroSigma);
    }
    return causes;
}

std::vector<Cause> causesOf(Drawn drawn, const Named& p) {
    if (p.K1 == p.K2) {
        return {Cause::equalK1K2};
    }
    if (drawn == Drawn::unitHyperboloid) {
        return causesOfReplacement(p);
    }
    return {p.U1 == 0.0 && p.U2 == 0.0 ? Cause::uHatOnThirdAxis : Cause::vanishingK};
}

} // namespace

SurfaceCondition SurfaceCondition::of(const Model& model) {
    if (isQuadric(model)) {
        return {};
    }
    const Drawn drawn = notQuadric(model);
    return {drawn, causesOf(drawn, Named(model))};
}
