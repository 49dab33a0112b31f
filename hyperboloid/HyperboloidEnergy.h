#pragma once

#include "math/Triple.h"

#include <cstddef>

/**
 * The energies of the vertices and the colours they give.
 *
 * Tables are plain float arrays: 3 floats per vertex for positions and colours (red, green, blue in
 * 0 to 1), 1 float per vertex for energies.
 */
namespace HyperboloidEnergy {

/** E = (K w) . w with w = u - uHat, the quadratic form of K at a point of U space. */
double energyAt(const float (&u)[3], const TripleMatrix& K, const Triple& uHat);

/** Writes the energies of the first `count` points of a table of U space. */
void computeEnergies(const float* points, std::size_t count, const TripleMatrix& K,
                     const Triple& uHat, float* energies);

/**
 * Maps the energies linearly onto 0 (lowest) to 1 (highest): e = (e - min) / (max - min).
 *
 * Equal energies, and energies that begin with NaN, all become NaN.
 */
void normalize(float* energies, std::size_t count);

/** The colour of a position: a second rule beside the energies' colours. */
void colorOfPosition(const float (&p)[3], float (&rgb)[3]);

/**
 * The colours from blue (energy 0) over green (energy 0.5) to red (energy 1).
 *
 * Hue (1 - e) 240 / 360 in the hue, saturation, lightness model.
 */
class Palette {
public:
    /** Saturation and lightness in 0 to 1; saturation 0 gives the grey of the lightness. */
    Palette(double saturation, double lightnessValue);

    /** The colour of a normalised energy; NaN gives the model's darkest channel value in all three
     * channels. */
    void colorOf(float energy, float (&rgb)[3]) const;
    /** Writes the colours of the first `count` energies. */
    void colorsOf(const float* energies, std::size_t count, float* colors) const;

private:
    bool grey;
    double lightness;
    /** q, the highest value of a channel. */
    double highest;
    /** p, the lowest value of a channel. */
    double lowest;
};

} // namespace HyperboloidEnergy
