#pragma once

#include "tests/reference/PlainVector.h"

#include <cstddef>
#include <vector>

/**
 * The hyperboloid computed the plain way: run-time vectors and matrices by value, and every number
 * computed at every vertex, where its formula stands.
 *
 * It shares no code with the model, and none of its arithmetic. The tests compare the model's bits
 * with it, the benchmarks the model's speed.
 */
class PlainHyperboloid {
public:
    /** The parameters of one hyperboloid in one space (0 for U, 1 for X, 2 for M). */
    struct Parameters {
        double K1, K2, K3, K13, K23;
        double U1, U2, U3;
        int space;
        unsigned int numCol, numRow;
        double saturation = 0.8;
        double lightness = 0.5;
    };

    explicit PlainHyperboloid(const Parameters& parameters);

    /** Generates the points, and in U space the normalised energies and then the colours. */
    void generate();
    /** The colours from the energies already there; nothing outside U space. */
    void recolor();

    /** 3 floats per vertex, vertex = column * numRow + row. */
    [[nodiscard]] const std::vector<float>& vertexTable() const { return vertices; }
    /** 3 floats per vertex, all 0 outside U space. */
    [[nodiscard]] const std::vector<float>& colorTable() const { return colors; }
    /** 1 float per vertex, all 0 outside U space. */
    [[nodiscard]] const std::vector<float>& energyTable() const { return energies; }

    float a = 0, b = 0, c = 0, d = 0;
    bool swapAxes = false;
    float semiAxis[3] = {};
    PlainVector lambda{0, 0, 0};
    PlainVector shift{0, 0, 0};
    PlainMatrix rotationMatrix;

private:
    void derivePnas();
    void deriveLambda();
    void deriveShift();
    double energyOf(const float* u);
    void normalizeEnergies();
    void colorOf(float energy, float* rgb) const;

    Parameters given;
    float K[5];
    PlainMatrix KMatrix;
    PlainVector U;
    std::vector<float> vertices;
    std::vector<float> colors;
    std::vector<float> energies;
};
