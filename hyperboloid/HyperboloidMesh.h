#pragma once

#include "hyperboloid/HyperboloidPolarity.h"
#include "hyperboloid/VertexGrid.h"

#include <Inventor/nodes/SoQuadMesh.h>
#include <vector>

class SoMaterialBundle;

/**
 * The surface's mesh: to everyone who looks an SoQuadMesh like any other, but quicker to pick, and
 * when it is transparent drawn far wall first.
 *
 * The library's mesh intersects a ray with every triangle. This one divides the grid into patches
 * with a bounding sphere each, and hands the library only the triangles of patches that the ray
 * comes near, in the library's own order, so that the picked point is the same to the last bit.
 * Triangles with a vertex that is not finite are never hit, and such a vertex does not count for
 * the bounding box.
 *
 * An opaque mesh is drawn by the library. Of a transparent one, the library would show the far wall
 * only where the grid's order happens to have it drawn before the near one.
 *
 * It has no type of its own in the scene library, on purpose: getTypeId() is SoQuadMesh's. It takes
 * its vertices from the coordinates in force, from the first one on; these must not be edited in
 * place once the mesh was picked.
 */
class HyperboloidMesh : public SoQuadMesh {
public:
    explicit HyperboloidMesh(const VertexGrid& grid);
    HyperboloidMesh(const HyperboloidMesh&) = delete;
    HyperboloidMesh& operator=(const HyperboloidMesh&) = delete;

    /** Tells which wall is the far one; by default all is near. */
    void setPolarity(const HyperboloidPolarity& polarityOfSurface) { polarity = polarityOfSurface; }

    void rayPick(SoRayPickAction* action) override;
    void GLRender(SoGLRenderAction* action) override;

protected:
    ~HyperboloidMesh() override = default;
    void computeBBox(SoAction* action, SbBox3f& box, SbVec3f& center) override;

private:
    /** Quadrilaterals firstQuad to lastQuad - 1 of the strips firstStrip to lastStrip - 1. */
    struct Patch {
        int firstStrip = 0;
        int lastStrip = 0;
        int firstQuad = 0;
        int lastQuad = 0;
        SbVec3f center{0, 0, 0};
        /** Radius of a sphere around the finite vertices; minus infinity when there are none. */
        double radius = 0;
    };
    /** The patches that share their strips, in the order of their quadrilaterals. */
    using Band = std::vector<Patch>;

    [[nodiscard]] VertexGrid grid() const;
    /** Does something with the vertices' coordinates and normals, generated ones if need be. */
    template <typename Use>
    void withVertices(SoAction* action, Use use);
    void drawRun(int strip, int first, int last, const SbVec3f* points, const SbVec3f* normals,
                 SoMaterialBundle& colors) const;

    void updateBands(const SbVec3f* points);
    Patch createPatch(int firstStrip, int firstQuad, const SbVec3f* points) const;
    void pickInBand(SoRayPickAction* action, const Band& band, const SbVec3f* points,
                    const SbVec3f* normals);
    void pickInStrip(SoRayPickAction* action, int strip, const Patch& patch, const SbVec3f* points,
                     const SbVec3f* normals);
    void sendVertex(int index, const SbVec3f* points, const SbVec3f* normals);

    HyperboloidPolarity polarity;
    std::vector<Band> bands;
    /** The coordinates that the bands were made from. */
    const SbVec3f* boundedPoints = nullptr;
};
