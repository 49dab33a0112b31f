#include "tests/reference/PlainHyperboloid.h"

#include <cmath>

namespace {

constexpr int U_SPACE = 0;
constexpr int M_SPACE = 2;
constexpr float T_RANGE = 4.0F;
constexpr double PI = 3.141592653589793;

double wrapped(double hue) {
    if (hue > 1) {
        hue -= 1;
    }
    if (hue < 0) {
        hue += 1;
    }
    return hue;
}

double channelValue(double hue, double p, double q) {
    if (6.0 * hue < 1) {
        return p + (q - p) * 6.0 * hue;
    }
    if (2.0 * hue < 1) {
        return q;
    }
    if (3.0 * hue < 2) {
        return p + (q - p) * (0.6666666666666666 - hue) * 6.0;
    }
    return p;
}

} // namespace

PlainHyperboloid::PlainHyperboloid(const Parameters& parameters)
    : given(parameters)
    , K{static_cast<float>(given.K1), static_cast<float>(given.K2), static_cast<float>(given.K3),
        static_cast<float>(given.K13), static_cast<float>(given.K23)}
    , KMatrix{PlainVector{given.K1, 0, given.K13}, PlainVector{0, given.K2, given.K23},
              PlainVector{given.K13, given.K23, given.K3}}
    , U{given.U1, given.U2, given.U3}
    , vertices(std::size_t{3} * given.numCol * given.numRow)
    , colors(vertices.size())
    , energies(vertices.size() / 3) {
    derivePnas();
    deriveLambda();
    deriveShift();
    rotationMatrix = {PlainVector{1, 1, -d - b}, PlainVector{1, -1, d - b}, PlainVector{0, 0, 1}};
    for (std::size_t i = 0; i < 3; ++i) {
        semiAxis[i] = static_cast<float>(std::sqrt(1.0 / lambda[i]));
    }
}

void PlainHyperboloid::derivePnas() {
    const float K1 = K[0];
    const float K2 = K[1];
    const float K13 = K[3];
    const float K23 = K[4];
    a = static_cast<float>((K1 * U[0] + K13 * U[2]) / (K1 - K2));
    b = K13 / (K2 - K1);
    c = static_cast<float>((K2 * U[1] + K23 * U[2]) / (K2 - K1));
    d = K23 / (K1 - K2);
}

void PlainHyperboloid::deriveLambda() {
    const float sigma = b * c + a * d;
    if (b * d == 0 || sigma == 0) {
        lambda = {1.0, 1.0, 1.0};
        return;
    }
    const double quotient =
        (sigma * sigma) / (static_cast<double>(b) * -4.0 * static_cast<double>(d));
    const auto k = static_cast<float>(a * c + quotient);
    swapAxes = b * d < 0;
    if (swapAxes) {
        lambda = {1.0 / (4.0 * k), 1.0 / (4.0 * k), (-b * d) / k};
    } else {
        lambda = {-1.0 / (4.0 * k), -1.0 / (4.0 * k), (-b * d) / k};
    }
}

void PlainHyperboloid::deriveShift() {
    if (b * d == 0) {
        return;
    }
    shift = {-c - a, c - a, (b * c + a * d) / (2.0F * b * d)};
}

void PlainHyperboloid::generate() {
    PlainVector p(3);
    for (unsigned int i = 0; i < given.numCol; ++i) {
        for (unsigned int j = 0; j < given.numRow; ++j) {
            const auto theta =
                static_cast<float>((2.0 * static_cast<double>(static_cast<float>(i))) * PI /
                                   static_cast<double>(static_cast<float>(given.numCol - 1)));
            const double h = T_RANGE;
            const auto t = static_cast<float>(
                (2.0 * h * j) / static_cast<double>(static_cast<float>(given.numRow - 1)) - h);
            const double r = std::sqrt(static_cast<double>(t * t) + 1.0);
            const std::size_t w = swapAxes ? 1 : 0;
            const double share = swapAxes ? 1 : 0;
            p[1 - w] = static_cast<double>(std::cos(theta)) * r *
                       (share * static_cast<double>(semiAxis[0]) +
                        (1 - share) * static_cast<double>(semiAxis[1]));
            p[2] = static_cast<double>(std::sin(theta)) * static_cast<double>(semiAxis[2]) * r;
            p[w] = static_cast<double>(t) * (share * static_cast<double>(semiAxis[1]) +
                                             (1 - share) * static_cast<double>(semiAxis[0]));
            if (given.space == U_SPACE || given.space == M_SPACE) {
                p = product(inverse(rotationMatrix), difference(p, shift));
            }
            if (given.space == M_SPACE) {
                p = product(KMatrix, difference(p, U));
            }
            const std::size_t k = static_cast<std::size_t>(i) * given.numRow + j;
            for (std::size_t component = 0; component < 3; ++component) {
                vertices[3 * k + component] = static_cast<float>(p[component]);
            }
            if (given.space == U_SPACE) {
                energies[k] = static_cast<float>(energyOf(&vertices[3 * k]));
            }
        }
    }
    if (given.space == U_SPACE) {
        normalizeEnergies();
    }
    recolor();
}

void PlainHyperboloid::recolor() {
    if (given.space != U_SPACE) {
        return;
    }
    for (std::size_t k = 0; k < energies.size(); ++k) {
        colorOf(energies[k], &colors[3 * k]);
    }
}

double PlainHyperboloid::energyOf(const float* u) {
    const PlainVector w = difference({u[0], u[1], u[2]}, U);
    return dotProduct(product(KMatrix, w), w);
}

void PlainHyperboloid::normalizeEnergies() {
    if (energies.empty()) {
        return;
    }
    float min = energies[0];
    float max = energies[0];
    for (const float e : energies) {
        if (min > e) {
            min = e;
        }
        if (e > max) {
            max = e;
        }
    }
    for (float& e : energies) {
        e = (e - min) / (max - min);
    }
}

void PlainHyperboloid::colorOf(float energy, float* rgb) const {
    const double s = given.saturation;
    const double l = given.lightness;
    if (s == 0) {
        rgb[0] = rgb[1] = rgb[2] = static_cast<float>(l);
        return;
    }
    double q = 0.5;
    if (l < 0.5) {
        q = l * (1 + s);
    }
    if (l >= 0.5) {
        q = l + s - l * s;
    }
    const double p = 2 * l - q;
    const double hue = (1 - static_cast<double>(energy)) * 240.0 / 360.0;
    rgb[0] = static_cast<float>(channelValue(wrapped(hue + 0.3333333333333333), p, q));
    rgb[1] = static_cast<float>(channelValue(wrapped(hue), p, q));
    rgb[2] = static_cast<float>(channelValue(wrapped(hue - 0.3333333333333333), p, q));
}
