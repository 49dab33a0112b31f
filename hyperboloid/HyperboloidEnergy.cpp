#include "hyperboloid/HyperboloidEnergy.h"

#include <algorithm>

namespace {

constexpr double lowestEnergyHueDegrees = 240.0;
constexpr double fullCircleDegrees = 360.0;
constexpr double oneThird = 1.0 / 3.0;
constexpr double twoThirds = 2.0 / 3.0;

/** q of the hue, saturation, lightness model: the highest value of a channel. */
double highestChannel(double saturation, double lightness) {
    if (lightness < 0.5) {
        return lightness * (1.0 + saturation);
    }
    if (lightness >= 0.5) {
        return lightness + saturation - lightness * saturation;
    }
    return 0.5; // a NaN lightness
}

/** A hue brought back into 0 to 1, for hues at most one turn away. */
double wrapHue(double hue) {
    if (hue > 1.0) {
        return hue - 1.0;
    }
    return hue < 0.0 ? hue + 1.0 : hue;
}

} // namespace

double HyperboloidEnergy::energyAt(const FloatTriple& u, const TripleMatrix& K,
                                   const Triple& uHat) {
    const Triple w = widened(u) - uHat;
    return dot(K * w, w);
}

void HyperboloidEnergy::computeEnergies(const std::vector<FloatTriple>& points,
                                        const TripleMatrix& K, const Triple& uHat,
                                        std::vector<float>& energies) {
    std::transform(points.begin(), points.end(), energies.begin(),
                   [&](const FloatTriple& u) { return static_cast<float>(energyAt(u, K, uHat)); });
}

void HyperboloidEnergy::normalize(std::vector<float>& energies) {
    if (energies.empty()) {
        return;
    }
    float lowest = energies.front();
    float highest = energies.front();
    for (const float energy : energies) {
        // Written so that a NaN never replaces a bound, and a NaN bound is never replaced.
        lowest = lowest > energy ? energy : lowest;
        highest = energy > highest ? energy : highest;
    }
    for (float& energy : energies) {
        energy = (energy - lowest) / (highest - lowest);
    }
}

HyperboloidEnergy::Palette::Palette(double saturation, double lightnessValue)
    : isGrey(saturation == 0.0)
    , lightness(lightnessValue)
    , highest(highestChannel(saturation, lightness))
    , lowest(2.0 * lightness - highest)
    , slope((highest - lowest) * 6.0) {}

FloatTriple HyperboloidEnergy::Palette::colorOf(float energy) const {
    if (isGrey) {
        const auto grey = static_cast<float>(lightness);
        return {grey, grey, grey};
    }
    const double hue = (1.0 - energy) * lowestEnergyHueDegrees / fullCircleDegrees;
    return narrowed({channelAt(hue + oneThird), channelAt(hue), channelAt(hue - oneThird)});
}

void HyperboloidEnergy::Palette::colorsOf(const std::vector<float>& energies,
                                          std::vector<FloatTriple>& colors) const {
    std::transform(energies.begin(), energies.end(), colors.begin(),
                   [this](float energy) { return colorOf(energy); });
}

double HyperboloidEnergy::Palette::channelAt(double hue) const {
    const double wrapped = wrapHue(hue);
    if (6.0 * wrapped < 1.0) {
        return lowest + slope * wrapped;
    }
    if (2.0 * wrapped < 1.0) {
        return highest;
    }
    if (3.0 * wrapped < 2.0) {
        return lowest + (highest - lowest) * (twoThirds - wrapped) * 6.0;
    }
    return lowest; // also for a NaN hue
}
