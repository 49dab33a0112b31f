#pragma once

#include <Inventor/SbVec3f.h>
#include <cmath>

/** Whether a point is somewhere: none of its coordinates is NaN or infinite. */
inline bool isFinite(const SbVec3f& point) {
    return std::isfinite(point[0]) && std::isfinite(point[1]) && std::isfinite(point[2]);
}
