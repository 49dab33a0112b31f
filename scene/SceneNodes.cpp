#include "scene/SceneNodes.h"

#include "scene/FiniteSeparator.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShapeHints.h>

namespace {

/** Replaces all values of a field of triples, whatever their number was before. */
template <typename Field>
void setTriples(Field& field, int count, const float (*values)[3]) {
    field.setNum(count);
    field.setValues(0, count, values);
}

} // namespace

SoSeparator* SceneNodes::createSeparator(const char* name) {
    auto* separator = new FiniteSeparator;
    separator->setName(name);
    return separator;
}

SoMaterial* SceneNodes::createMaterial(float red, float green, float blue) {
    auto* material = new SoMaterial;
    const float color[1][3] = {{red, green, blue}};
    setColors(*material, 1, color);
    return material;
}

void SceneNodes::setColors(SoMaterial& material, int count, const float (*colors)[3]) {
    setTriples(material.ambientColor, count, colors);
    setTriples(material.diffuseColor, count, colors);
    setTriples(material.specularColor, count, colors);
}

SoCoordinate3* SceneNodes::createCoordinates(int count, const float (*points)[3]) {
    auto* coordinates = new SoCoordinate3;
    setTriples(coordinates->point, count, points);
    return coordinates;
}

SoQuadMesh* SceneNodes::createQuadMesh(int verticesPerRow, int verticesPerColumn) {
    auto* mesh = new SoQuadMesh;
    mesh->verticesPerRow = verticesPerRow;
    mesh->verticesPerColumn = verticesPerColumn;
    return mesh;
}

SoShapeHints* SceneNodes::createTwoSidedLighting() {
    auto* hints = new SoShapeHints;
    // An ordering without a solid shape: the library then lights both sides and culls neither.
    hints->vertexOrdering = SoShapeHints::COUNTERCLOCKWISE;
    return hints;
}
