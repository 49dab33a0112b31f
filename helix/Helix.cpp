#include "helix/Helix.h"

#include "helix/HelixNodes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double pi = 3.141592653589793;
constexpr double fullTurn = 6.283185307179586;
constexpr float quarterTurn = 1.5707964F;
constexpr float threeQuarterTurns = 4.712389F;
constexpr double brightest = 0.8;

/** A count from a product of numbers that nothing bounds: truncated, and 0 when it is no count. */
unsigned int truncatedCount(double value) {
    if (!(value >= 0)) {
        return 0;
    }
    constexpr unsigned int largest = std::numeric_limits<unsigned int>::max();
    return value < static_cast<double>(largest) ? static_cast<unsigned int>(value) : largest;
}

/** The number of steps between `count` samples; at least one, so that it can divide. */
unsigned int stepsBetween(unsigned int count) {
    return count < 2 ? 1 : count - 1;
}

float channel(float value) {
    return static_cast<float>(std::fabs(std::sin(std::sqrt(std::fabs(value)))) * brightest);
}

std::array<float, 3> colorOf(const std::array<float, 3>& point) {
    const auto [x, y, z] = point;
    return {channel(y * x + z * y), channel(z * x + y * z), channel(x * z + y * x)};
}

/** center + alongNormal v + alongBinormal b, summed in double from left to right. */
std::array<float, 3> tubeVertex(const std::array<double, 3>& center, const std::array<double, 3>& v,
                                const std::array<double, 3>& b, double alongNormal,
                                double alongBinormal) {
    std::array<float, 3> vertex{};
    for (std::size_t c = 0; c < 3; ++c) {
        vertex[c] = static_cast<float>(center[c] + alongNormal * v[c] + alongBinormal * b[c]);
    }
    return vertex;
}

std::array<double, 3> widened(const std::array<float, 3>& point) {
    return {point[0], point[1], point[2]};
}

Vecteur toVecteur(const std::array<double, 3>& direction) {
    return {direction[0], direction[1], direction[2]};
}

std::array<double, 3> toDirection(const Vecteur& vector) {
    return {vector.GetCoord(0), vector.GetCoord(1), vector.GetCoord(2)};
}

std::array<float, 3> toPoint(const float (&point)[3]) {
    return {point[0], point[1], point[2]};
}

void store(const std::array<float, 3>& point, float (&out)[3]) {
    std::copy(point.begin(), point.end(), out);
}

} // namespace

Helix::Helix() {
    init_tables(true, true, true);
    generatePoints(true, true, true);
}

Helix::Helix(float u1, float u2, float u3, float red, float green, float blue) {
    refresh_param(u1, u2, u3, red, green, blue);
    updateLineVertexCount();
    init_tables(true, true, true);
    generatePoints(true, true, true);
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
    omega = 1 / std::sqrt(radius * radius + pitch * pitch);
    constexpr double verticesPerTurn = 50.0;
    nbLineVertices = truncatedCount(turns * verticesPerTurn);
    init_tables(true, true, true);
    generatePoints(true, true, true);
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
    return lineVertices[static_cast<std::size_t>(i)][static_cast<std::size_t>(c)];
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

void Helix::updateLineVertexCount() {
    nbLineVertices = truncatedCount(static_cast<float>(precisionLine) * nTurns);
}

Helix::Turn::Turn(float angle)
    : cosine(std::cos(angle))
    , sine(std::sin(angle)) {}

Helix::Direction Helix::normalAt(const Turn& theta) {
    return {-theta.cosine, -theta.sine, 0};
}

Helix::Direction Helix::binormalAt(const Turn& theta) const {
    return {pitch * omega * theta.sine, -pitch * omega * theta.cosine, radius * omega};
}

Helix::Direction Helix::ribbonDirection(const Turn& turn, const Direction& v, const Direction& b) {
    Direction direction{};
    for (std::size_t c = 0; c < 3; ++c) {
        direction[c] = turn.cosine * v[c] + turn.sine * b[c];
    }
    return direction;
}

Helix::Point Helix::lineVertexAt(float s, const Turn& theta) const {
    return {radius * theta.cosine, radius * theta.sine,
            static_cast<float>(pitch * omega * s - pi * nTurns * pitch)};
}

Helix::Point Helix::ribbonEdge(const Point& center, const Direction& d) const {
    Point edge{};
    for (std::size_t c = 0; c < 3; ++c) {
        edge[c] = static_cast<float>(center[c] + ribRange * d[c]);
    }
    return edge;
}

Helix::RingOffset Helix::ringOffset(float angle) const {
    const Turn turn(angle);
    return {tubeR * turn.cosine, tubeR * turn.sine};
}

Vecteur Helix::get_v(float s) const {
    return toVecteur(normalAt(Turn(omega * s)));
}

Vecteur Helix::get_b(float s) const {
    return toVecteur(binormalAt(Turn(omega * s)));
}

Vecteur Helix::d1_from_v_b(Vecteur v, Vecteur b) const {
    return toVecteur(ribbonDirection(Turn(phi), toDirection(v), toDirection(b)));
}

void Helix::computePositionForParams(float const& s, float (&out)[3]) const {
    store(lineVertexAt(s, Turn(omega * s)), out);
}

void Helix::computePositionForParams(float (&center)[3], Vecteur v, Vecteur b, float (&out)[3],
                                     float const& angle) const {
    const RingOffset offset = ringOffset(angle);
    store(tubeVertex(widened(toPoint(center)), toDirection(v), toDirection(b), offset.alongNormal,
                     offset.alongBinormal),
          out);
}

void Helix::computeRibbon(float (&out)[3], float (&center)[3], Vecteur d) const {
    store(ribbonEdge(toPoint(center), toDirection(d)), out);
}

void Helix::computeColorForPoint(float const (&pt)[3], float (&rgb)[3]) const {
    store(colorOf(toPoint(pt)), rgb);
}

float Helix::phi_from_u(float u1, float u2) const {
    const float q = u2 / curvature;
    const float sine = u1 / curvature;
    if (q > 0) {
        return std::asin(sine);
    }
    if (q < 0) {
        return static_cast<float>(pi - std::asin(sine));
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
    const float squares = torsion * torsion + curvature * curvature;
    radius = curvature / squares;
    pitch = torsion / squares;
    omega = 1 / std::sqrt(pitch * pitch + radius * radius);
    phi = phi_from_u(u1, u2);
    helixColor = {red, green, blue};
    return !std::isnan(u2 / curvature);
}

void Helix::init_tables(bool line, bool tube, bool ribbon) {
    const std::size_t lineCount = nbLineVertices;
    const auto clear = [](bool chosen, std::size_t count, Table& vertices, Table& colors) {
        if (chosen) {
            vertices.assign(count, {});
            colors.assign(count, {});
        }
    };
    clear(line, lineCount, lineVertices, lineColors);
    clear(ribbon, 2 * lineCount, ribbonVertices, ribbonColors);
    clear(tube, precisionTube * lineCount, tubeVertices, tubeColors);
}

void Helix::fitTables() {
    const std::size_t lineCount = nbLineVertices;
    init_tables(lineVertices.size() != lineCount, tubeVertices.size() != precisionTube * lineCount,
                ribbonVertices.size() != 2 * lineCount);
}

float Helix::arcLengthOfVertex(unsigned int i) const {
    return static_cast<float>(nTurns * fullTurn * i / stepsBetween(nbLineVertices) * (1.0 / omega));
}

std::vector<Helix::RingOffset> Helix::ringOffsets() const {
    std::vector<RingOffset> offsets;
    offsets.reserve(precisionTube);
    const auto steps = static_cast<float>(stepsBetween(precisionTube));
    for (unsigned int j = 0; j < precisionTube; ++j) {
        offsets.push_back(ringOffset(static_cast<float>(static_cast<float>(j) * fullTurn / steps)));
    }
    return offsets;
}

void Helix::generatePoints(bool line, bool tube, bool ribbon) {
    fitTables();
    const std::vector<RingOffset> ring = tube ? ringOffsets() : std::vector<RingOffset>();
    const Turn ribbonTurn(phi);
    const Direction nowhere{0, 0, 0};
    for (unsigned int i = 0; i < nbLineVertices; ++i) {
        const float s = arcLengthOfVertex(i);
        const Turn theta(omega * s);
        const Direction v = normalAt(theta);
        const Direction b = binormalAt(theta);
        if (line) {
            lineVertices[i] = lineVertexAt(s, theta);
        }
        const Point& center = lineVertices[i];
        const Point color = colorOf(center);
        if (line) {
            lineColors[i] = color;
        }
        if (tube) {
            const Direction wideCenter = widened(center);
            std::size_t vertex = static_cast<std::size_t>(precisionTube) * i;
            for (const RingOffset& offset : ring) {
                tubeVertices[vertex] =
                    tubeVertex(wideCenter, v, b, offset.alongNormal, offset.alongBinormal);
                tubeColors[vertex] = color;
                ++vertex;
            }
        }
        if (ribbon) {
            const std::size_t inner = 2 * static_cast<std::size_t>(i);
            ribbonVertices[inner] = ribbonEdge(center, nowhere);
            ribbonVertices[inner + 1] = ribbonEdge(center, ribbonDirection(ribbonTurn, v, b));
            ribbonColors[inner] = color;
            ribbonColors[inner + 1] = color;
        }
    }
}

SoSeparator* Helix::DrawLine() const {
    return HelixNodes::createLine(*this);
}

SoSeparator* Helix::DrawTube() const {
    return HelixNodes::createTube(*this);
}

SoSeparator* Helix::DrawRibbon() const {
    return HelixNodes::createRibbon(*this);
}
