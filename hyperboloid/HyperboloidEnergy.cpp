#include "hyperboloid/HyperboloidEnergy.h"

#include "scene/PositionColor.h"

#include <algorithm>

namespace {

constexpr std::size_t floatsPerVertex = 3;
constexpr double blueHueDegrees = 240.0;
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

/** The value of a channel at its hue in 0 to 1: it rises, stays highest, falls and stays lowest. */
double channel(double hue, double lowest, double slope, double highest) {
    if (6.0 * hue < 1.0) {
        return lowest + slope * hue;
    }
    if (2.0 * hue < 1.0) {
        return highest;
    }
    if (3.0 * hue < 2.0) {
        return lowest + (highest - lowest) * (twoThirds - hue) * 6.0;
    }
    return lowest; // also for a NaN hue
}

} // namespace

double HyperboloidEnergy::energyAt(const float (&u)[3], const TripleMatrix& K, const Triple& uHat) {
    const Triple w = Triple{u[0], u[1], u[2]} - uHat;
    return dot(K * w, w);
}

void HyperboloidEnergy::computeEnergies(const float* points, std::size_t count,
                                        const TripleMatrix& K, const Triple& uHat,
                                        float* energies) {
    for (std::size_t k = 0; k < count; ++k) {
        const float* point = points + floatsPerVertex * k;
        energies[k] = static_cast<float>(energyAt({point[0], point[1], point[2]}, K, uHat));
    }
}

void HyperboloidEnergy::normalize(float* energies, std::size_t count) {
    if (count == 0) {
        return;
    }
    float lowest = energies[0];
    float highest = energies[0];
    for (std::size_t k = 0; k < count; ++k) {
        // Written so that a NaN never replaces a bound, and a NaN bound is never replaced.
        lowest = lowest > energies[k] ? energies[k] : lowest;
        highest = energies[k] > highest ? energies[k] : highest;
    }
    for (std::size_t k = 0; k < count; ++k) {
        energies[k] = (energies[k] - lowest) / (highest - lowest);
    }
}

void HyperboloidEnergy::colorOfPosition(const float (&p)[3], float (&rgb)[3]) {
    store(positionColor(toFloatTriple(p)), rgb);
}

HyperboloidEnergy::Palette::Palette(double saturation, double lightnessValue)
    : grey(saturation == 0.0)
    , lightness(lightnessValue)
    , highest(highestChannel(saturation, lightness))
    , lowest(2.0 * lightness - highest) {}

void HyperboloidEnergy::Palette::colorOf(float energy, float (&rgb)[3]) const {
    colorsOf(&energy, 1, rgb);
}

void HyperboloidEnergy::Palette::colorsOf(const float* energies, std::size_t count,
                                          float* colors) const {
    if (grey) {
        std::fill_n(colors, floatsPerVertex * count, static_cast<float>(lightness));
        return;
    }
    const double slope = (highest - lowest) * 6.0;
    for (std::size_t k = 0; k < count; ++k) {
        const double hue = (1.0 - energies[k]) * blueHueDegrees / fullCircleDegrees;
        float* rgb = colors + floatsPerVertex * k;
        rgb[0] = static_cast<float>(channel(wrapHue(hue + oneThird), lowest, slope, highest));
        rgb[1] = static_cast<float>(channel(wrapHue(hue), lowest, slope, highest));
        rgb[2] = static_cast<float>(channel(wrapHue(hue - oneThird), lowest, slope, highest));
    }
}
