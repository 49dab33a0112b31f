#pragma once

#include "math/Matrice.h"
#include "math/Triple.h"
#include "math/Vecteur.h"

/**
 * The maps between the three spaces in which the hyperboloid is drawn.
 *
 * U space holds the parameter points u, X space the canonical coordinates x of the quadric, M space
 * the images m of u under the matrix K:
 *
 *     x = R u + s      u = R^-1 (x - s)      m = K (u - uHat)
 *
 * R is a shear-like matrix, not orthogonal, of determinant -2. It is inverted once, on
 * construction. For K1 = K2 its entries are not finite; then coordinates are infinite or NaN, and
 * there is no error.
 */
class HyperboloidSpaces {
public:
    static constexpr int U = 0;
    static constexpr int X = 1;
    static constexpr int M = 2;

    HyperboloidSpaces(Matrice rotationMatrix, Vecteur shiftVector, Matrice KMatrix,
                      Vecteur uHatVector);

    /** x = R u + s */
    [[nodiscard]] Triple xFromU(const Triple& u) const { return rotation * u + shift; }
    /** u = R^-1 (x - s) */
    [[nodiscard]] Triple uFromX(const Triple& x) const { return inverseRotation * (x - shift); }
    /** m = K (u - uHat) */
    [[nodiscard]] Triple mFromU(const Triple& u) const { return K * (u - uHat); }

    /** A point of U space carried into the given space; an unknown space is taken for U. */
    [[nodiscard]] Triple fromU(const Triple& u, int space) const;
    /** The distinguished point uHat, seen in the given space: the origin of M space. */
    [[nodiscard]] Triple distinguishedPoint(int space) const;
    /** The centre of the quadric, seen in the given space: the origin of X space. */
    [[nodiscard]] Triple center(int space) const;

private:
    Triple uHat;
    Triple shift;
    TripleMatrix rotation;
    TripleMatrix inverseRotation;
    TripleMatrix K;
};
