#include "helix/HelixNodes.h"

#include "helix/Helix.h"
#include "helix/HelixNames.h"
#include "scene/SceneNodes.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoLineSet.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoMaterialBinding.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>

namespace {

void addVertexColors(SoSeparator& parent, const Helix::Table& colors) {
    auto* material = new SoMaterial;
    // Without any vertex the material keeps its own colours: the scene library wants at least one.
    if (!colors.empty()) {
        SceneNodes::setColors(*material, colors);
    }
    parent.addChild(material);
    auto* binding = new SoMaterialBinding;
    binding->value = SoMaterialBinding::PER_VERTEX;
    parent.addChild(binding);
}

void addCoordinates(SoSeparator& parent, const Helix::Table& points) {
    parent.addChild(SceneNodes::createCoordinates(points));
}

/**
 * A mesh of one row per centre-line vertex, in one colour or coloured by vertex when the helix has
 * no colour of its own.
 */
SoSeparator* createMesh(const char* name, const Helix& helix, const FloatTriple& color,
                        const Helix::Table& colors, const Helix::Table& points,
                        unsigned int verticesPerRow) {
    SoSeparator* mesh = SceneNodes::createSeparator(name);
    if (helix.getHelixColor() == FloatTriple{0, 0, 0}) {
        addVertexColors(*mesh, colors);
    } else {
        mesh->addChild(SceneNodes::createMaterial(color));
    }
    addCoordinates(*mesh, points);
    // The scene library complains about a mesh without a single quadrilateral.
    const unsigned int rows = helix.getNbLineVertices();
    if (verticesPerRow > 1 && rows > 1) {
        mesh->addChild(
            SceneNodes::createQuadMesh(static_cast<int>(verticesPerRow), static_cast<int>(rows)));
    }
    return mesh;
}

} // namespace

SoSeparator* HelixNodes::createLine(const Helix& helix) {
    SoSeparator* line = SceneNodes::createSeparator(HelixNames::line);
    addVertexColors(*line, helix.getLineColors());
    addCoordinates(*line, helix.getLineVertices());
    auto* polyline = new SoLineSet;
    polyline->numVertices = static_cast<int>(helix.getLineVertices().size());
    line->addChild(polyline);
    return line;
}

SoSeparator* HelixNodes::createTube(const Helix& helix) {
    return createMesh(HelixNames::tube, helix, helix.getHelixColor(), helix.getTubeColors(),
                      helix.getTubeVertices(), helix.getPrecisionTube());
}

SoSeparator* HelixNodes::createRibbon(const Helix& helix) {
    const auto [red, green, blue] = helix.getHelixColor();
    constexpr unsigned int edges = 2;
    return createMesh(HelixNames::ribbon, helix, {1 - red, 1 - green, 1 - blue},
                      helix.getRibbonColors(), helix.getRibbonVertices(), edges);
}
