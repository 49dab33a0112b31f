#include "helix/Helix.h"

#include "helix/HelixNodes.h"
#include "math/Constants.h"
#include "scene/PositionColor.h"

#include <Inventor/nodes/SoSeparator.h>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr float quarterTurn = 1.5707964F;
constexpr float threeQuarterTurns = 4.712389F;

/** A count from a product of numbers that nothing bounds: truncated, and 0 when it is no count. */
unsigned int truncatedCount(double value) {
    if (!(value >= 0)) {
        return 0;
    }
    constexpr unsigned int largest = std::numeric_limits<unsigned int>::max();
    return value < static_cast<double>(largest) ? static_cast<unsigned int>(value) : largest;
}

} // namespace

Helix::Helix() {
    sampleAll();
}

Helix::Helix(float u1, float u2, float u3, float red, float green, float blue) {
    refresh_param(u1, u2, u3, red, green, blue);
    updateLineVertexCount();
    sampleAll();
}

Helix::Helix(float x, float y, float turns, unsigned int tubePrecision, bool fromRadiusPitch)
    : nTurns(turns)
    , precisionTube(tubePrecision) {
    if (fromRadiusPitch) {
        radius = x;
        pitch = y;
        curvature = k_from_r_p();
        torsion = t_from_r_p();
    } else {
        curvature = x;
        torsion = y;
        radius = r_from_k_t();
        pitch = p_from_k_t();
    }
    updateOmega();
    constexpr double verticesPerTurn = 50.0;
    nbLineVertices = truncatedCount(turns * verticesPerTurn);
    sampleAll();
}

float Helix::k_from_r_p() const {
    return radius / (radius * radius + pitch * pitch);
}

float Helix::t_from_r_p() const {
    return pitch / (radius * radius + pitch * pitch);
}

float Helix::r_from_k_t() const {
    return curvature / (curvature * curvature + torsion * torsion);
}

float Helix::p_from_k_t() const {
    return torsion / (curvature * curvature + torsion * torsion);
}

float Helix::getLineVertex(int i, int c) const {
    return coordinate(getLineVertices()[static_cast<std::size_t>(i)], c);
}

void Helix::setPrecisionTube(int verticesPerRing) {
    precisionTube = static_cast<unsigned int>(std::max(verticesPerRing, 0));
}

void Helix::setPrecisionLine(int verticesPerTurn) {
    precisionLine = static_cast<unsigned int>(std::max(verticesPerTurn, 0));
    updateLineVertexCount();
}

void Helix::setNTurns(float turns) {
    nTurns = turns;
    updateLineVertexCount();
}

void Helix::updateOmega() {
    omega = 1 / std::sqrt(radius * radius + pitch * pitch);
}

void Helix::updateLineVertexCount() {
    nbLineVertices = truncatedCount(static_cast<float>(precisionLine) * nTurns);
}

Vecteur Helix::get_v(float s) const {
    return toVecteur(HelixCurve::normalAt(curve().thetaAt(s)));
}

Vecteur Helix::get_b(float s) const {
    return toVecteur(curve().binormalAt(curve().thetaAt(s)));
}

Vecteur Helix::d1_from_v_b(Vecteur v, Vecteur b) const {
    return toVecteur(profile().ribbonDirection(toTriple(v), toTriple(b)));
}

void Helix::computePositionForParams(float const& s, float (&out)[3]) const {
    store(curve().pointAt(s, curve().thetaAt(s)), out);
}

void Helix::computePositionForParams(float (&center)[3], Vecteur v, Vecteur b, float (&out)[3],
                                     float const& angle) const {
    store(HelixProfile::tubeVertex(widened(toFloatTriple(center)), toTriple(v), toTriple(b),
                                   profile().ringOffset(angle)),
          out);
}

void Helix::computeRibbon(float (&out)[3], float (&center)[3], Vecteur d) const {
    store(profile().ribbonVertex(toFloatTriple(center), toTriple(d)), out);
}

void Helix::computeColorForPoint(float const (&pt)[3], float (&rgb)[3]) const {
    store(positionColor(toFloatTriple(pt)), rgb);
}

float Helix::phi_from_u(float u1, float u2) const {
    const float q = u2 / curvature;
    const float sine = u1 / curvature;
    if (q > 0) {
        return std::asin(sine);
    }
    if (q < 0) {
        return static_cast<float>(Constants::pi - std::asin(sine));
    }
    if (q == 0 && sine > 0) {
        return quarterTurn;
    }
    if (q == 0 && sine < 0) {
        return threeQuarterTurns;
    }
    return u1;
}

bool Helix::refresh_param(float u1, float u2, float u3, float red, float green, float blue) {
    torsion = u3;
    curvature = std::sqrt(u1 * u1 + u2 * u2);
    radius = r_from_k_t();
    pitch = p_from_k_t();
    updateOmega();
    phi = phi_from_u(u1, u2);
    helixColor = {red, green, blue};
    return !std::isnan(u2 / curvature);
}

HelixCurve Helix::curve() const {
    return {radius, pitch, omega, nTurns};
}

HelixProfile Helix::profile() const {
    return {tubeR, ribRange, Turn(phi)};
}

HelixTables::Counts Helix::counts() const {
    return {nbLineVertices, precisionTube};
}

void Helix::init_tables(bool line, bool tube, bool ribbon) {
    tables.init(counts(), {line, tube, ribbon});
}

void Helix::generatePoints(bool line, bool tube, bool ribbon) {
    tables.fill(counts(), {line, tube, ribbon}, curve(), profile());
}

void Helix::sampleAll() {
    init_tables(true, true, true);
    generatePoints(true, true, true);
}

SoSeparator* Helix::DrawLine() const {
    tables.requireSizesOf(counts());
    return HelixNodes::createLine(*this);
}

SoSeparator* Helix::DrawTube() const {
    tables.requireSizesOf(counts());
    return HelixNodes::createTube(*this);
}

SoSeparator* Helix::DrawRibbon() const {
    tables.requireSizesOf(counts());
    return HelixNodes::createRibbon(*this);
}

void Helix::drawParts(SoSeparator& root) const {
    root.addChild(DrawTube());
    root.addChild(DrawRibbon());
}
