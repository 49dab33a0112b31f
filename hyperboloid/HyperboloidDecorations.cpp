#include "hyperboloid/HyperboloidDecorations.h"

#include "hyperboloid/HyperboloidNames.h"
#include "hyperboloid/Ring.h"
#include "scene/SceneNodes.h"

#include <Inventor/nodes/SoCone.h>
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
#include <vector>

namespace {

constexpr FloatTriple redColor{1.0F, 0.0F, 0.0F};
constexpr FloatTriple yellowColor{1.0F, 1.0F, 0.0F};
constexpr FloatTriple blueColor{0.0F, 0.0F, 1.0F};

constexpr int tubeRings = 2;
constexpr int tubePoints = tubeRings * Ring::pointCount;

constexpr int coneApex = 0;
constexpr int coneBaseCenter = Ring::pointCount + 1;
constexpr int conePoints = Ring::pointCount + 2;

constexpr int indicesPerFace = 4;

constexpr float arrowRadius = 0.08F;
constexpr float arrowHeight = 0.14F;

constexpr float glyphTipScale = 0.15F;
/** A third of pi, about the first axis. */
constexpr float glyphTipTurn = 1.0471976F;

/** A closed wall between two rings of points, in one colour. */
void addTube(SoSeparator& parent, const FloatTriple& color,
             const std::vector<FloatTriple>& points) {
    parent.addChild(SceneNodes::createMaterial(color));
    parent.addChild(SceneNodes::createCoordinates(points));
    parent.addChild(SceneNodes::createQuadMesh(Ring::pointCount, tubeRings));
}

/** The two directions that span the plane of a ring. */
struct RingPlane {
    Triple first;
    Triple second;

    /** The plane perpendicular to a vector. */
    static RingPlane perpendicularTo(const Vecteur& v) {
        Vecteur nA(3);
        Vecteur nB(3);
        HyperboloidDecorations::findNormals(v, nA, nB);
        return {toTriple(nA), toTriple(nB)};
    }

    /** center + x first + y second, narrowed once. */
    [[nodiscard]] FloatTriple point(const Triple& center, double x, double y) const {
        return narrowed(center + x * first + y * second);
    }
};

/** Triangles that join one point to every pair of neighbours on the cone's rim, and close it. */
SoIndexedFaceSet* createConeFan(int32_t hub) {
    auto* fan = new SoIndexedFaceSet;
    fan->coordIndex.setNum(indicesPerFace * Ring::pointCount);
    for (int32_t k = 0; k < Ring::pointCount; ++k) {
        const int32_t next = k + 1 < Ring::pointCount ? k + 2 : 1;
        const std::array<int32_t, indicesPerFace> face{hub, k + 1, next, SO_END_FACE_INDEX};
        fan->coordIndex.setValues(indicesPerFace * k, indicesPerFace, face.data());
    }
    return fan;
}

/** A named marker: translated, in a diffuse colour, and shown by the shared marker group. */
SoSeparator* createMarker(const char* name, const Triple& position, const FloatTriple& color,
                          SoGroup* marker) {
    const FloatTriple translation = narrowed(position);
    auto* transform = new SoTransform;
    transform->translation.setValue(translation.x, translation.y, translation.z);
    auto* material = new SoMaterial;
    material->diffuseColor.setValue(color.x, color.y, color.z);
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
    const RingPlane plane = RingPlane::perpendicularTo(direction);
    const Triple start = toTriple(A);
    const Triple along = toTriple(direction);

    std::vector<FloatTriple> points;
    points.reserve(tubePoints);
    for (int i = 0; i < tubeRings; ++i) {
        const Triple center = start + i * along;
        for (const auto& [cosine, sine] : Ring::directions()) {
            points.push_back(plane.point(center, radius * cosine, radius * sine));
        }
    }

    SoSeparator* tube = SceneNodes::createSeparator(HyperboloidNames::axis);
    addTube(*tube, blue ? blueColor : redColor, points);
    return tube;
}

SoSeparator* HyperboloidDecorations::createCone(Vecteur A, Vecteur B, float radius, float height) {
    Vecteur direction = B - A;
    direction.Normalisation();
    const RingPlane plane = RingPlane::perpendicularTo(direction);
    const Triple baseCenter = toTriple(A);

    std::vector<FloatTriple> points;
    points.reserve(conePoints);
    points.push_back(narrowed(baseCenter - height * toTriple(direction)));
    // The rim begins one step from 0 and so ends one beyond the full turn, on its first point; its
    // angles are summed in float. Both are on purpose (docs/kept-on-purpose.md).
    auto phi = static_cast<float>(Ring::step);
    for (int k = 0; k < Ring::pointCount; ++k) {
        points.push_back(plane.point(baseCenter, radius * std::sin(phi), radius * std::cos(phi)));
        phi = static_cast<float>(phi + Ring::step);
    }
    points.push_back(narrowed(baseCenter));

    SoSeparator* cone = SceneNodes::createSeparator(HyperboloidNames::cone);
    cone->addChild(SceneNodes::createMaterial(blueColor));
    cone->addChild(SceneNodes::createCoordinates(points));
    cone->addChild(createConeFan(coneApex));
    cone->addChild(createConeFan(coneBaseCenter));
    return cone;
}

SoSeparator* HyperboloidDecorations::createU3Axis(const HyperboloidSpaces& spaces, int space,
                                                  float range, float radius) {
    const Vecteur P1 = toVecteur(spaces.fromU({0.0, 0.0, -range}, space));
    const Vecteur P2 = toVecteur(spaces.fromU({0.0, 0.0, range}, space));
    SoSeparator* axis = SceneNodes::createSeparator(HyperboloidNames::u3Axis);
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
    SoSeparator* axes = SceneNodes::createSeparator(HyperboloidNames::u3ConstAxis);
    for (const auto& [P1, P2] : lines) {
        axes->addChild(createTubeLine(toVecteur(spaces.fromU(P1, space)),
                                      toVecteur(spaces.fromU(P2, space)), radius, false));
    }
    return axes;
}

SoSeparator* HyperboloidDecorations::createUHat(const HyperboloidSpaces& spaces, int space,
                                                SoGroup* marker) {
    return createMarker(HyperboloidNames::uHat, spaces.distinguishedPoint(space), yellowColor,
                        marker);
}

SoSeparator* HyperboloidDecorations::createCenter(const HyperboloidSpaces& spaces, int space,
                                                  SoGroup* marker) {
    return createMarker(HyperboloidNames::center, spaces.center(space), redColor, marker);
}

SoSeparator* HyperboloidDecorations::createVertexMarker(const SbName& name,
                                                        const FloatTriple& place,
                                                        const FloatTriple& color, SoGroup* marker) {
    auto* material = new SoMaterial;
    material->diffuseColor.setValue(color.x, color.y, color.z);
    auto* position = new SoTransform;
    position->translation.setValue(place.x, place.y, place.z);

    SoSeparator* placed = SceneNodes::createSeparator(name.getString());
    placed->addChild(material);
    placed->addChild(position);
    placed->addChild(marker);
    return placed;
}

SoSeparator* HyperboloidDecorations::createAxisGlyph(double halfLength, double radius) {
    std::vector<FloatTriple> points;
    points.reserve(tubePoints);
    for (const double end : {halfLength, -halfLength}) {
        for (const auto& [cosine, sine] : Ring::directions()) {
            points.push_back(narrowed({radius * cosine, radius * sine, end}));
        }
    }
    auto* tip = new SoTransform;
    tip->translation.setValue(0.0F, 0.0F, static_cast<float>(halfLength));
    tip->scaleFactor.setValue(glyphTipScale, glyphTipScale, glyphTipScale);
    tip->rotation.setValue(SbVec3f(1.0F, 0.0F, 0.0F), glyphTipTurn);

    SoSeparator* axis = SceneNodes::createSeparator(HyperboloidNames::axis);
    addTube(*axis, blueColor, points);
    axis->addChild(tip);
    axis->addChild(new SoCone);
    return axis;
}
