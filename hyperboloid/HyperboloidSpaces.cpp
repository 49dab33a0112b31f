#include "hyperboloid/HyperboloidSpaces.h"

namespace {

constexpr Triple origin{0.0, 0.0, 0.0};

} // namespace

HyperboloidSpaces::HyperboloidSpaces(Matrice rotationMatrix, Vecteur shiftVector, Matrice KMatrix,
                                     Vecteur uHatVector)
    : uHat(toTriple(uHatVector))
    , shift(toTriple(shiftVector))
    , rotation(toTripleMatrix(rotationMatrix))
    , inverseRotation(toTripleMatrix(rotationMatrix.inv()))
    , K(toTripleMatrix(KMatrix)) {}

Triple HyperboloidSpaces::fromU(const Triple& u, int space) const {
    switch (space) {
    case X:
        return xFromU(u);
    case M:
        return mFromU(u);
    default:
        return u;
    }
}

Triple HyperboloidSpaces::distinguishedPoint(int space) const {
    // Written as the origin, so that an infinite K does not make it NaN.
    return space == M ? origin : fromU(uHat, space);
}

Triple HyperboloidSpaces::center(int space) const {
    switch (space) {
    case U:
        return inverseRotation * (-1.0 * shift);
    case M:
        return mFromU(inverseRotation * (-1.0 * shift));
    default:
        return origin;
    }
}
