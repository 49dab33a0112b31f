#pragma once

#include "hyperboloid/HyperboloidSpaces.h"

#include <Inventor/SbDPMatrix.h>
#include <Inventor/SbVec4d.h>
#include <array>

/**
 * What tells the far wall of the surface from its near wall, for any place of the eye.
 *
 * A line of sight meets a quadric in two points at most, at distances s and s' from the eye. The
 * polar plane of the eye cuts the line at their harmonic mean 2 s s' / (s + s'), and so between
 * them: what is seen of the near wall lies on the eye's side of the plane, and what is seen of the
 * far wall beyond it. For parallel lines of sight the eye is a direction, and the plane halves the
 * piece between the two points.
 *
 * In X space the quadric is x0^2 / alpha0^2 + x1^2 / alpha1^2 + x2^2 / alpha2^2 = 1, with a minus
 * before the term of the surface's axis; U and M space are affine images of X space.
 */
class HyperboloidPolarity {
public:
    /** Of no surface: all is near. */
    HyperboloidPolarity() = default;
    /**
     * Of the surface with these semi-axes in X space, seen in the given space. Where the surface is
     * flat or undefined, all is near.
     */
    HyperboloidPolarity(const std::array<float, 3>& semiAxes, bool swapAxes,
                        const HyperboloidSpaces& spaces, int space);

    /**
     * The polar plane (a, b, c, d) of the eye: a x + b y + c z + d is negative on the far side.
     *
     * @param eye the eye's place in homogeneous coordinates (x, y, z, 1), or for parallel lines of
     *            sight the direction towards it (x, y, z, 0)
     */
    [[nodiscard]] SbVec4d planeBeforeFarWall(const SbVec4d& eye) const;

private:
    /** The symmetric matrix q of the quadric p q p^T = 0 for homogeneous points p. */
    SbDPMatrix quadric{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
};
