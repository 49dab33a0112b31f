#pragma once

#include "math/Matrice.h"
#include "math/Vecteur.h"

#include <array>
#include <optional>

/**
 * The numbers derived from the parameters K1, K2, K3, K13, K23 and uHat.
 *
 * Which step runs in float and which in double is part of the results. Parameters are not checked:
 * K1 = K2 gives infinite or NaN numbers.
 */
namespace HyperboloidCoefficients {

/** The four scalars a, b, c, d that the whole surface follows from. */
struct Pnas {
    float a;
    float b;
    float c;
    float d;
};

/** The coefficients of the canonical quadric, and along which axis it lies. */
struct Lambda {
    /** lambda0, lambda1, lambda2 */
    Vecteur values;
    /** True for b d < 0: the axis is the second coordinate of X space instead of the first. */
    bool swapAxes = false;
};

/** K as a symmetric matrix: rows (K1, 0, K13), (0, K2, K23), (K13, K23, K3). */
Matrice symmetricMatrix(double K1, double K2, double K3, double K13, double K23);

/**
 * a = (K1 uHat1 + K13 uHat3) / (K1 - K2),  b = K13 / (K2 - K1),
 * c = (K2 uHat2 + K23 uHat3) / (K2 - K1),  d = K23 / (K1 - K2)
 *
 * from K = (K1, K2, K3, K13, K23). The signs of the denominators differ on purpose.
 */
Pnas pnas(const std::array<float, 5>& K, const Vecteur& uHat);

/**
 * With sigma = b c + a d and k = a c - sigma^2 / (4 b d):
 *
 *     (1/(4k), 1/(4k), -b d/k) for b d < 0, otherwise (-1/(4k), -1/(4k), -b d/k).
 *
 * Nothing when b d or sigma is 0.
 */
std::optional<Lambda> lambda(const Pnas& pnas);

/** s = (-c - a, c - a, (b c + a d) / (2 b d)); nothing when b d is 0. */
std::optional<Vecteur> shift(const Pnas& pnas);

/** R = [[1, 1, -q - p], [1, -1, q - p], [0, 0, 1]], called with p = b and q = d. */
Matrice rotation(float p, float q);

/** alpha_i = sqrt(1 / lambda_i), NaN for a negative lambda_i. */
std::array<float, 3> semiAxes(const Vecteur& lambda);

} // namespace HyperboloidCoefficients
