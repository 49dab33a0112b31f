#pragma once

#include <cmath>

/** Cosine and sine of an angle in radians, in single precision. */
struct Turn {
    explicit Turn(float angle)
        : cosine(std::cos(angle))
        , sine(std::sin(angle)) {}

    float cosine;
    float sine;
};
