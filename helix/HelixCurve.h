#pragma once

#include "helix/EvenSteps.h"
#include "helix/Turn.h"
#include "math/Constants.h"
#include "math/Triple.h"

/**
 * The centre line of a helix: its points and unit vectors at an arc length s, where the angle is
 * theta = omega s.
 *
 * Numbers are formed in single precision but for the height, whose difference runs in double.
 */
struct HelixCurve {
    float radius;
    float pitch;
    /** Turning rate per unit of arc length. */
    float omega;
    /** Number of turns. */
    float nTurns;

    /** The angle theta = omega s. */
    Turn thetaAt(float s) const { return Turn(omega * s); }

    /** (r cos theta, r sin theta, p omega s - pi n p). */
    FloatTriple pointAt(float s, const Turn& theta) const {
        return {radius * theta.cosine, radius * theta.sine,
                static_cast<float>(pitch * omega * s - Constants::pi * nTurns * pitch)};
    }

    /** The principal normal (-cos theta, -sin theta, 0). */
    static Triple normalAt(const Turn& theta) { return {-theta.cosine, -theta.sine, 0}; }

    /** The binormal (p omega sin theta, -p omega cos theta, r omega). */
    Triple binormalAt(const Turn& theta) const {
        return {pitch * omega * theta.sine, -pitch * omega * theta.cosine, radius * omega};
    }

    /**
     * The arc length of vertex i of `count` evenly spaced ones, the last of which closes the n-th
     * turn: s = 2 pi n i / (count - 1) / omega, formed in double. A single vertex is at 0.
     */
    float arcLength(unsigned int i, unsigned int count) const {
        return static_cast<float>(nTurns * Constants::fullTurn * i / stepsBetween(count) *
                                  (1.0 / omega));
    }
};
