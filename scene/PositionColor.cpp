#include "scene/PositionColor.h"

#include <cmath>

namespace {

constexpr double brightest = 0.8;

float channel(float sumOfProducts) {
    const float wave = std::fabs(std::sin(std::sqrt(std::fabs(sumOfProducts))));
    return static_cast<float>(wave * brightest);
}

} // namespace

FloatTriple positionColor(const FloatTriple& position) {
    const auto [x, y, z] = position;
    return {channel(y * x + z * y), channel(z * x + y * z), channel(x * z + y * x)};
}
