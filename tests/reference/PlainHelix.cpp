#include "tests/reference/PlainHelix.h"

#include <cmath>

namespace {

void computeColor(const std::array<float, 3>& pt, std::array<float, 3>& rgb) {
    const float x = pt[0];
    const float y = pt[1];
    const float z = pt[2];
    rgb[0] = static_cast<float>(std::fabs(sinf(sqrtf(fabsf(y * x + z * y)))) * 0.8);
    rgb[1] = static_cast<float>(std::fabs(sinf(sqrtf(fabsf(z * x + y * z)))) * 0.8);
    rgb[2] = static_cast<float>(std::fabs(sinf(sqrtf(fabsf(x * z + y * x)))) * 0.8);
}

} // namespace

PlainHelix::PlainHelix(float u1, float u2, float u3, float red, float green, float blue) {
    refresh_param(u1, u2, u3, red, green, blue);
    nbLineVertices = static_cast<unsigned int>(static_cast<float>(precisionLine) * nTurns);
    init_tables(true, true, true);
    generatePoints(true, true, true);
}

bool PlainHelix::refresh_param(float u1, float u2, float u3, float /*red*/, float /*green*/,
                               float /*blue*/) {
    torsion = u3;
    curvature = sqrtf(u1 * u1 + u2 * u2);
    const float D = torsion * torsion + curvature * curvature;
    radius = curvature / D;
    pitch = torsion / D;
    omega = 1.0F / sqrtf(pitch * pitch + radius * radius);
    const float q = u2 / curvature;
    if (q > 0) {
        phi = asinf(u1 / curvature);
    } else if (q < 0) {
        phi = static_cast<float>(3.141592653589793 - static_cast<double>(asinf(u1 / curvature)));
    } else if (q == 0) {
        phi = u1;
        if (u1 / curvature > 0) {
            phi = 1.5707964F;
        }
        if (u1 / curvature < 0) {
            phi = 4.712389F;
        }
    } else {
        phi = u1;
    }
    return q == q;
}

void PlainHelix::init_tables(bool line, bool tube, bool ribbon) {
    const std::size_t n = nbLineVertices;
    if (line) {
        lineVertices.assign(n, {});
        lineColors.assign(n, {});
    }
    if (ribbon) {
        ribbonVertices.assign(2 * n, {});
        ribbonColors.assign(2 * n, {});
    }
    if (tube) {
        tubeVertices.assign(precisionTube * n, {});
        tubeColors.assign(precisionTube * n, {});
    }
}

PlainVector PlainHelix::get_v(float s) {
    const float theta = omega * s;
    return {-cosf(theta), -sinf(theta), 0};
}

PlainVector PlainHelix::get_b(float s) {
    const float theta = omega * s;
    return {pitch * omega * sinf(theta), -pitch * omega * cosf(theta), radius * omega};
}

PlainVector PlainHelix::d1_from_v_b(PlainVector v, PlainVector b) {
    return sum(scaled(static_cast<double>(cosf(phi)), v),
               scaled(static_cast<double>(sinf(phi)), b));
}

void PlainHelix::computePositionForParams(const std::array<float, 3>& center, PlainVector v,
                                          PlainVector b, std::array<float, 3>& out, float angle) {
    for (std::size_t component = 0; component < 3; ++component) {
        out[component] =
            static_cast<float>(static_cast<double>(center[component]) +
                               static_cast<double>(tubeR * cosf(angle)) * v[component] +
                               static_cast<double>(tubeR * sinf(angle)) * b[component]);
    }
}

void PlainHelix::computeRibbon(std::array<float, 3>& out, const std::array<float, 3>& center,
                               PlainVector d) {
    for (std::size_t component = 0; component < 3; ++component) {
        out[component] = static_cast<float>(static_cast<double>(center[component]) +
                                            static_cast<double>(ribRange) * d[component]);
    }
}

void PlainHelix::generatePoints(bool line, bool tube, bool ribbon) {
    for (unsigned int i = 0; i < nbLineVertices; ++i) {
        const auto s =
            static_cast<float>(static_cast<double>(nTurns) * 6.283185307179586 * i /
                               (nbLineVertices - 1) * (1.0 / static_cast<double>(omega)));
        const float theta = omega * s;
        const PlainVector v = get_v(s);
        const PlainVector b = get_b(s);
        const PlainVector d = d1_from_v_b(v, b);
        if (line) {
            lineVertices[i][0] = radius * cosf(theta);
            lineVertices[i][1] = radius * sinf(theta);
            lineVertices[i][2] = static_cast<float>(
                static_cast<double>(pitch * omega * s) -
                3.141592653589793 * static_cast<double>(nTurns) * static_cast<double>(pitch));
            computeColor(lineVertices[i], lineColors[i]);
        }
        if (tube) {
            for (unsigned int j = 0; j < precisionTube; ++j) {
                const auto angle = static_cast<float>(
                    static_cast<double>(static_cast<float>(j)) * 6.283185307179586 /
                    static_cast<double>(static_cast<float>(precisionTube - 1)));
                const std::size_t k = static_cast<std::size_t>(precisionTube) * i + j;
                computePositionForParams(lineVertices[i], v, b, tubeVertices[k], angle);
                computeColor(lineVertices[i], tubeColors[k]);
            }
        }
        if (ribbon) {
            const std::size_t k = 2 * static_cast<std::size_t>(i);
            computeRibbon(ribbonVertices[k], lineVertices[i], {0, 0, 0});
            computeRibbon(ribbonVertices[k + 1], lineVertices[i], d);
            computeColor(lineVertices[i], ribbonColors[k]);
            computeColor(lineVertices[i], ribbonColors[k + 1]);
        }
    }
}
