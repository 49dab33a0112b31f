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
void setTriples(Field& field, const std::vector<FloatTriple>& values) {
    const auto count = static_cast<int>(values.size());
    field.setNum(count);
    // A table of triples has the layout of an array of float[3], as which the library takes it.
    field.setValues(0, count, reinterpret_cast<const float(*)[3]>(values.data()));
}

} // namespace

SoSeparator* SceneNodes::createSeparator(const char* name) {
    auto* separator = new FiniteSeparator;
    separator->setName(name);
    return separator;
}

SoMaterial* SceneNodes::createMaterial(const FloatTriple& color) {
    auto* material = new SoMaterial;
    setColors(*material, {color});
    return material;
}

void SceneNodes::setColors(SoMaterial& material, const std::vector<FloatTriple>& colors) {
    setTriples(material.ambientColor, colors);
    setTriples(material.diffuseColor, colors);
    setTriples(material.specularColor, colors);
}

SoCoordinate3* SceneNodes::createCoordinates(const std::vector<FloatTriple>& points) {
    auto* coordinates = new SoCoordinate3;
    setTriples(coordinates->point, points);
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
