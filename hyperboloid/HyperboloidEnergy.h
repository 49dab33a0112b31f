#pragma once

#include "math/Triple.h"

#include <vector>

/**
 * The energies of the vertices and the colours they give: red, green, blue in 0 to 1.
 *
 * Tables have one entry per vertex; a result is written into a table of the size of the given one.
 */
namespace HyperboloidEnergy {

/** E = (K w) . w with w = u - uHat, the quadratic form of K at a point of U space. */
double energyAt(const FloatTriple& u, const TripleMatrix& K, const Triple& uHat);

/** Writes the energies of points of U space. */
void computeEnergies(const std::vector<FloatTriple>& points, const TripleMatrix& K,
                     const Triple& uHat, std::vector<float>& energies);

/**
 * Maps the energies linearly onto 0 (lowest) to 1 (highest): e = (e - min) / (max - min).
 *
 * Equal energies, and energies that begin with NaN, all become NaN.
 */
void normalize(std::vector<float>& energies);

/**
 * The colours of energies in the hue, saturation, lightness model: the hue runs evenly from that of
 * the lowest energy, blue, by way of green to 0, red: (1 - e) 240 / 360 of a turn.
 */
class Palette {
public:
    /** Saturation and lightness in 0 to 1; saturation 0 gives the grey of the lightness. */
    Palette(double saturation, double lightnessValue);

    /**
     * The colour of a normalised energy. NaN gives the lowest value of a channel in all three; with
     * saturation 0 it is as grey as all others.
     */
    [[nodiscard]] FloatTriple colorOf(float energy) const;
    /** Writes the colours of normalised energies. */
    void colorsOf(const std::vector<float>& energies, std::vector<FloatTriple>& colors) const;

private:
    /** The value of a channel at its hue: it rises, stays highest, falls and stays lowest. */
    [[nodiscard]] double channelAt(double hue) const;

    bool isGrey;
    double lightness;
    /** q, the highest value of a channel. */
    double highest;
    /** p, the lowest value of a channel. */
    double lowest;
    /** By how much a rising channel rises per hue. */
    double slope;
};

} // namespace HyperboloidEnergy
