#include "hyperboloid/HyperboloidPolarity.h"

#include <cmath>

namespace {

/** The map from X space as a matrix that takes homogeneous points from the left. */
SbDPMatrix matrixFromX(const HyperboloidSpaces& spaces, int space) {
    const auto fromX = [&](const Triple& x) {
        return spaces.fromU(spaces.uFromX(x), space);
    };
    const Triple origin = fromX({0, 0, 0});
    const Triple axis0 = fromX({1, 0, 0}) - origin;
    const Triple axis1 = fromX({0, 1, 0}) - origin;
    const Triple axis2 = fromX({0, 0, 1}) - origin;
    return {axis0.x, axis0.y, axis0.z, 0, axis1.x,  axis1.y,  axis1.z,  0,
            axis2.x, axis2.y, axis2.z, 0, origin.x, origin.y, origin.z, 1};
}

SbDPMatrix quadricInX(const std::array<float, 3>& semiAxes, bool swapAxes) {
    const auto coefficient = [&](std::size_t i) {
        const double semiAxis = semiAxes.at(i);
        const bool isAxis = i == (swapAxes ? 1U : 0U);
        return (isAxis ? -1 : 1) / (semiAxis * semiAxis);
    };
    return {coefficient(0), 0, 0, 0, 0, coefficient(1), 0, 0, 0, 0, coefficient(2), 0, 0, 0, 0, -1};
}

} // namespace

HyperboloidPolarity::HyperboloidPolarity(const std::array<float, 3>& semiAxes, bool swapAxes,
                                         const HyperboloidSpaces& spaces, int space) {
    const SbDPMatrix fromX = matrixFromX(spaces, space);
    const double volume = fromX.det4();
    if (volume != 0 && std::isfinite(volume)) {
        const SbDPMatrix toX = fromX.inverse();
        quadric = toX * quadricInX(semiAxes, swapAxes) * toX.transpose();
    }
}

SbVec4d HyperboloidPolarity::planeBeforeFarWall(const SbVec4d& eye) const {
    SbVec4d plane;
    quadric.multVecMatrix(eye, plane);
    const double atEye = plane.dot(eye);
    return atEye < 0 ? -plane : plane;
}
