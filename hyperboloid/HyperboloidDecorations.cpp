#include "hyperboloid/HyperboloidDecorations.h"

#include "scene/SceneNodes.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoIndexedFaceSet.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTransform.h>

#include <array>
#include <cmath>
#include <cstdint>

namespace {

constexpr int ringPoints = 30;
constexpr int tubeRings = 2;
constexpr double fullTurn = 6.283185307179586;

constexpr int coneApex = 0;
constexpr int coneBaseCenter = ringPoints + 1;
constexpr int conePoints = ringPoints + 2;
constexpr float coneStartAngle = 0.21666156F;
/** fullTurn / 29; the rim ends a step beyond the full turn, on its first point, on purpose. */
constexpr double coneAngleStep = 0.21666156231653746;

constexpr int indicesPerFace = 4;

constexpr float arrowRadius = 0.08F;
constexpr float arrowHeight = 0.14F;

void storePoint(const Triple& source, float (&point)[3]) {
    point[0] = static_cast<float>(source.x);
    point[1] = static_cast<float>(source.y);
    point[2] = static_cast<float>(source.z);
}

/** A point of the ring around a centre: centre + x nA + y nB, narrowed once. */
void storeRingPoint(const Triple& center, double x, const Triple& nA, double y, const Triple& nB,
                    float (&point)[3]) {
    storePoint(center + x * nA + y * nB, point);
}

/** Triangles that join one point to every pair of neighbours on the cone's rim, and close it. */
SoIndexedFaceSet* createConeFan(int32_t hub) {
    auto* fan = new SoIndexedFaceSet;
    fan->coordIndex.setNum(indicesPerFace * ringPoints);
    for (int32_t k = 0; k < ringPoints; ++k) {
        const int32_t next = k + 1 < ringPoints ? k + 2 : 1;
        const std::array<int32_t, indicesPerFace> face{hub, k + 1, next, SO_END_FACE_INDEX};
        fan->coordIndex.setValues(indicesPerFace * k, indicesPerFace, face.data());
    }
    return fan;
}

/** A named marker: translated, in a diffuse colour, and shown by the shared marker group. */
SoSeparator* createMarker(const char* name, const Triple& position, const SbColor& color,
                          SoGroup* marker) {
    auto* transform = new SoTransform;
    transform->translation.setValue(static_cast<float>(position.x), static_cast<float>(position.y),
                                    static_cast<float>(position.z));
    auto* material = new SoMaterial;
    material->diffuseColor.setValue(color);
    SoSeparator* separator = SceneNodes::createSeparator(name);
    separator->addChild(transform);
    separator->addChild(material);
    separator->addChild(marker);
    return separator;
}

} // namespace

void HyperboloidDecorations::findNormals(Vecteur v, Vecteur& nA, Vecteur& nB) {
    if (v[1] == 0.0 && v[0] == 0.0) {
        nA = Vecteur(1.0, 0.0, 0.0);
        nB = Vecteur(0.0, 1.0, 0.0);
        return;
    }
    nA = Vecteur(-v[1], v[0], 0.0);
    nB = v ^ nA;
    nA.Normalisation();
    nB.Normalisation();
}

SoSeparator* HyperboloidDecorations::createTubeLine(Vecteur A, Vecteur B, float radius, bool blue) {
    const Vecteur direction = B - A;
    Vecteur nA(3);
    Vecteur nB(3);
    findNormals(direction, nA, nB);
    const Triple start = toTriple(A);
    const Triple along = toTriple(direction);
    const Triple firstNormal = toTriple(nA);
    const Triple secondNormal = toTriple(nB);

    float points[tubeRings * ringPoints][3];
    for (int i = 0; i < tubeRings; ++i) {
        const Triple center = start + i * along;
        for (int k = 0; k < ringPoints; ++k) {
            // 29 steps for 30 points: the last point repeats the first, and the ring closes.
            const double phi = k * fullTurn / (ringPoints - 1);
            storeRingPoint(center, radius * std::cos(phi), firstNormal, radius * std::sin(phi),
                           secondNormal, points[i * ringPoints + k]);
        }
    }

    SoSeparator* tube = SceneNodes::createSeparator("Axis");
    tube->addChild(blue ? SceneNodes::createMaterial(0.0F, 0.0F, 1.0F)
                        : SceneNodes::createMaterial(1.0F, 0.0F, 0.0F));
    tube->addChild(SceneNodes::createCoordinates(tubeRings * ringPoints, points));
    tube->addChild(SceneNodes::createQuadMesh(ringPoints, tubeRings));
    return tube;
}

SoSeparator* HyperboloidDecorations::createCone(Vecteur A, Vecteur B, float radius, float height) {
    Vecteur direction = B - A;
    direction.Normalisation();
    Vecteur nA(3);
    Vecteur nB(3);
    findNormals(direction, nA, nB);
    const Triple baseCenter = toTriple(A);
    const Triple firstNormal = toTriple(nA);
    const Triple secondNormal = toTriple(nB);

    float points[conePoints][3];
    storePoint(baseCenter - height * toTriple(direction), points[coneApex]);
    float phi = coneStartAngle;
    for (int k = 1; k <= ringPoints; ++k) {
        storeRingPoint(baseCenter, radius * std::sin(phi), firstNormal, radius * std::cos(phi),
                       secondNormal, points[k]);
        phi = static_cast<float>(phi + coneAngleStep);
    }
    storePoint(baseCenter, points[coneBaseCenter]);

    SoSeparator* cone = SceneNodes::createSeparator("Cone");
    cone->addChild(SceneNodes::createMaterial(0.0F, 0.0F, 1.0F));
    cone->addChild(SceneNodes::createCoordinates(conePoints, points));
    cone->addChild(createConeFan(coneApex));
    cone->addChild(createConeFan(coneBaseCenter));
    return cone;
}

SoSeparator* HyperboloidDecorations::createU3Axis(const HyperboloidSpaces& spaces, int space,
                                                  float range, float radius) {
    const Vecteur P1 = toVecteur(spaces.fromU({0.0, 0.0, -range}, space));
    const Vecteur P2 = toVecteur(spaces.fromU({0.0, 0.0, range}, space));
    SoSeparator* axis = SceneNodes::createSeparator("U3Axis");
    axis->addChild(createTubeLine(P1, P2, radius, true));
    axis->addChild(createCone(P1, P2, arrowRadius, arrowHeight));
    return axis;
}

SoSeparator* HyperboloidDecorations::createU3ConstAxis(const HyperboloidSpaces& spaces, int space,
                                                       const HyperboloidCoefficients::Pnas& pnas,
                                                       float range, float radius) {
    const auto [a, b, c, d] = pnas;
    const float upperHeight = -a / b;
    const float lowerHeight = -c / d;
    const float upperOffset = c - (a * d) / b;
    const float lowerOffset = a - (c * b) / d;
    const Triple lines[][2] = {
        {{-range, upperOffset, upperHeight}, {range, upperOffset, upperHeight}},
        {{0.0, -range, upperHeight}, {0.0, range, upperHeight}},
        {{lowerOffset, -range, lowerHeight}, {lowerOffset, range, lowerHeight}},
        {{-range, 0.0, lowerHeight}, {range, 0.0, lowerHeight}},
    };
    SoSeparator* axes = SceneNodes::createSeparator("U3ConstAxis");
    for (const auto& [P1, P2] : lines) {
        axes->addChild(createTubeLine(toVecteur(spaces.fromU(P1, space)),
                                      toVecteur(spaces.fromU(P2, space)), radius, false));
    }
    return axes;
}

SoSeparator* HyperboloidDecorations::createUHat(const HyperboloidSpaces& spaces, int space,
                                                SoGroup* marker) {
    return createMarker("uHat", spaces.distinguishedPoint(space), SbColor(1.0F, 1.0F, 0.0F),
                        marker);
}

SoSeparator* HyperboloidDecorations::createCenter(const HyperboloidSpaces& spaces, int space,
                                                  SoGroup* marker) {
    return createMarker("Center", spaces.center(space), SbColor(1.0F, 0.0F, 0.0F), marker);
}
