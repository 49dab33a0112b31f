#pragma once

#include "math/Vecteur.h"

#include <array>
#include <vector>

/**
 * Whether the surface that a model draws is the quadric of its parameters; if not, what is drawn
 * instead, and why.
 *
 * The points u with m1 u2 = m2 u1, where m = K (u - uHat), form the quadric
 *
 *     (x0^2 - x1^2) / 4 - b d x2^2 = k      with  k = (K2 K13 U2 - K1 K23 U1)^2
 *                                                     / (4 K13 K23 (K1 - K2)^2)
 *
 * of X space, U being uHat. It is a hyperboloid with semi-axes unless K1 = K2, K13 K23 = 0, or
 * k = 0, when it is a cone.
 */
struct SurfaceCondition {
    enum class Drawn {
        /** The quadric of the parameters. */
        quadric,
        /** The hyperboloid with semi-axes 1: b d or b c + a d is 0 in floats. */
        unitHyperboloid,
        /** A hyperboloid whose semi-axes are of any length, as roundings make it. */
        rounded,
        /** All vertices at the centre: k is 0 in floats. */
        point,
        /** Nothing: no vertex has finite coordinates. */
        nothing
    };

    enum class Cause {
        /** K1 = K2 */
        equalK1K2,
        /** K13 = 0 */
        zeroK13,
        /** K23 = 0 */
        zeroK23,
        /** uHat = 0 */
        zeroUHat,
        /** b c + a d = 0, that is K1 K23 U1 + K2 K13 U2 + 2 K13 K23 U3 = 0 */
        zeroSigma,
        /** U1 = U2 = 0: k = 0 */
        uHatOnThirdAxis,
        /** k is 0, or too small beside the terms that it is the sum of. */
        vanishingK
    };

    /** The numbers of a model that decide where its surface lies. */
    struct Model {
        /** K1, K2, K3, K13, K23 */
        std::array<float, 5> K{};
        Vecteur uHat;
        /** alpha0, alpha1, alpha2 as they are drawn with. */
        std::array<float, 3> semiAxis{};
        /** Whether the axis is the second coordinate of X space instead of the first. */
        bool swapAxes = false;
    };

    Drawn drawn = Drawn::quadric;
    /** Empty for the quadric; otherwise what must change before it is drawn, as far as it is seen.
     */
    std::vector<Cause> causes;

    /**
     * The condition of a model. Semi-axes within 1 % of those of the quadric count as right: this
     * is what the eye takes for the same, and far above what a and b, c and d are rounded by.
     */
    static SurfaceCondition of(const Model& model);
};
