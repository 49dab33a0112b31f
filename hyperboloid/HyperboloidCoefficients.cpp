#include "hyperboloid/HyperboloidCoefficients.h"

#include <cmath>

Matrice HyperboloidCoefficients::symmetricMatrix(double K1, double K2, double K3, double K13,
                                                 double K23) {
    return {K1, 0.0, K13, 0.0, K2, K23, K13, K23, K3};
}

HyperboloidCoefficients::Pnas HyperboloidCoefficients::pnas(const std::array<float, 5>& K,
                                                            const Vecteur& uHat) {
    const float K1 = K[0];
    const float K2 = K[1];
    const float K13 = K[3];
    const float K23 = K[4];
    const double firstNumerator = K1 * uHat.GetCoord(0) + K13 * uHat.GetCoord(2);
    const double secondNumerator = K2 * uHat.GetCoord(1) + K23 * uHat.GetCoord(2);
    return {static_cast<float>(firstNumerator / (K1 - K2)), K13 / (K2 - K1),
            static_cast<float>(secondNumerator / (K2 - K1)), K23 / (K1 - K2)};
}

std::optional<HyperboloidCoefficients::Lambda> HyperboloidCoefficients::lambda(const Pnas& pnas) {
    const auto [a, b, c, d] = pnas;
    const float bd = b * d;
    const float sigma = b * c + a * d;
    if (bd == 0.0F || sigma == 0.0F) {
        return std::nullopt;
    }
    const double divisor = static_cast<double>(b) * -4.0 * static_cast<double>(d);
    const auto k = static_cast<float>(a * c + static_cast<double>(sigma * sigma) / divisor);
    const double quarter = 1.0 / (4.0 * k);
    const float third = -b * d / k;
    if (bd < 0.0F) {
        return Lambda{Vecteur(quarter, quarter, third), true};
    }
    return Lambda{Vecteur(-quarter, -quarter, third), false};
}

std::optional<Vecteur> HyperboloidCoefficients::shift(const Pnas& pnas) {
    const auto [a, b, c, d] = pnas;
    if (b * d == 0.0F) {
        return std::nullopt;
    }
    return Vecteur(-c - a, c - a, (b * c + a * d) / (2.0F * b * d));
}

Matrice HyperboloidCoefficients::rotation(float p, float q) {
    return {1.0, 1.0, -q - p, 1.0, -1.0, q - p, 0.0, 0.0, 1.0};
}

std::array<float, 3> HyperboloidCoefficients::semiAxes(const Vecteur& lambda) {
    const auto semiAxis = [&](int i) {
        return static_cast<float>(std::sqrt(1.0 / lambda.GetCoord(i)));
    };
    return {semiAxis(0), semiAxis(1), semiAxis(2)};
}
