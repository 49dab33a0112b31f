#pragma once

#include "math/Triple.h"

#include <boost/intrusive_ptr.hpp>
#include <vector>

class SoCoordinate3;
class SoMaterial;
class SoQuadMesh;
class SoSeparator;
class SoShapeHints;

/**
 * Owning pointer to a scene node: holds one count of the node's own reference count.
 *
 * A pointer member of this type keeps the node alive; a bare node pointer never owns.
 */
template <typename Node>
using NodePointer = boost::intrusive_ptr<Node>;

/**
 * Small makers of scene nodes that the models share.
 *
 * Every returned node is new and unreferenced: the caller adds it to a scene, which then owns it.
 * Tables (x, y, z or red, green, blue in 0 to 1) are copied into the node's fields. An empty one
 * leaves the field without any value.
 */
namespace SceneNodes {

/** A separator that bears the given scene name; what is not finite in it does no harm outside. */
SoSeparator* createSeparator(const char* name);

/** A material whose ambient, diffuse and specular colours are all the one given colour. */
SoMaterial* createMaterial(const FloatTriple& color);

/** Gives the ambient, the diffuse and the specular colours of a material the same table. */
void setColors(SoMaterial& material, const std::vector<FloatTriple>& colors);

/** Coordinates holding a copy of the given points. */
SoCoordinate3* createCoordinates(const std::vector<FloatTriple>& points);

/** A mesh of quadrilaterals over the coordinates in force, one row of vertices after the other. */
SoQuadMesh* createQuadMesh(int verticesPerRow, int verticesPerColumn);

/**
 * Lets OpenGL light both sides of what follows it. The tube and the ribbon of a helix are seen from
 * either side; without this, a side that the winding turns away from the light stays black.
 */
SoShapeHints* createTwoSidedLighting();

} // namespace SceneNodes
