#pragma once

#include "tests/reference/PlainVector.h"

#include <array>
#include <vector>

/**
 * The helix computed the plain way: run-time vectors by value, and every number computed where its
 * formula stands. It shares no code with the model, and none of its arithmetic; the tests compare
 * the model's bits with it, the benchmarks the model's speed. It guards nothing: at least two
 * vertices per line and per ring.
 */
class PlainHelix {
public:
    using Table = std::vector<std::array<float, 3>>;

    PlainHelix(float u1, float u2, float u3, float red, float green, float blue);

    bool refresh_param(float u1, float u2, float u3, float red, float green, float blue);
    void init_tables(bool line, bool tube, bool ribbon);
    void generatePoints(bool line, bool tube, bool ribbon);

    float radius = 0;
    float pitch = 0;
    float curvature = 0;
    float torsion = 0;
    float omega = 0;
    float phi = 0;
    float ribRange = 0.05F;
    float nTurns = 5.0F;
    float tubeR = 0.01F;
    unsigned int precisionLine = 50;
    unsigned int nbLineVertices = 250;
    unsigned int precisionTube = 16;
    Table lineVertices;
    Table tubeVertices;
    Table ribbonVertices;
    Table lineColors;
    Table tubeColors;
    Table ribbonColors;

private:
    PlainVector get_v(float s);
    PlainVector get_b(float s);
    PlainVector d1_from_v_b(PlainVector v, PlainVector b);
    void computePositionForParams(const std::array<float, 3>& center, PlainVector v, PlainVector b,
                                  std::array<float, 3>& out, float angle);
    void computeRibbon(std::array<float, 3>& out, const std::array<float, 3>& center,
                       PlainVector d);
};
