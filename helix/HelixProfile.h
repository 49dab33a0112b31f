#pragma once

#include "helix/Turn.h"
#include "math/Triple.h"

/**
 * What a helix carries around its centre line: the ring of the tube and the breadth of the ribbon,
 * both in the plane of the normal v and the binormal b. Points are formed in double.
 */
struct HelixProfile {
    /** Where a vertex of the ring lies from its centre: multiples of v and b, floats widened. */
    struct RingOffset {
        double alongNormal;
        double alongBinormal;
    };

    /** Radius of the tube. */
    float tubeR;
    /** Width of the ribbon. */
    float ribRange;
    /** The ribbon's angle from the normal towards the binormal. */
    Turn phi;

    /** (tubeR cos angle, tubeR sin angle), angle in radians. */
    RingOffset ringOffset(float angle) const {
        const Turn turn(angle);
        return {tubeR * turn.cosine, tubeR * turn.sine};
    }

    /** center + alongNormal v + alongBinormal b, summed from left to right. */
    static FloatTriple tubeVertex(const Triple& center, const Triple& v, const Triple& b,
                                  const RingOffset& offset) {
        return narrowed(center + offset.alongNormal * v + offset.alongBinormal * b);
    }

    /** cos(phi) v + sin(phi) b. */
    Triple ribbonDirection(const Triple& v, const Triple& b) const {
        return phi.cosine * v + phi.sine * b;
    }

    /** center + ribRange d. */
    FloatTriple ribbonVertex(const FloatTriple& center, const Triple& d) const {
        return narrowed(widened(center) + ribRange * d);
    }
};
