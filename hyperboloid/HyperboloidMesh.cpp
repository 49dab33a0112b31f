#include "hyperboloid/HyperboloidMesh.h"

#include "hyperboloid/HyperboloidWalls.h"
#include "scene/Finite.h"

#include <Inventor/SbBox3f.h>
#include <Inventor/SbLine.h>
#include <Inventor/SbViewVolume.h>
#include <Inventor/SoPrimitiveVertex.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/bundles/SoMaterialBundle.h>
#include <Inventor/caches/SoNormalCache.h>
#include <Inventor/details/SoFaceDetail.h>
#include <Inventor/details/SoPointDetail.h>
#include <Inventor/elements/SoCoordinateElement.h>
#include <Inventor/elements/SoLazyElement.h>
#include <Inventor/elements/SoModelMatrixElement.h>
#include <Inventor/elements/SoViewVolumeElement.h>
#include <Inventor/system/gl.h>
#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace {

/** Quadrilaterals along each side of a patch. */
constexpr int patchSize = 16;

/** What rounding may move a ray sideways, as a share of the distance. */
constexpr double rounding = 1e-5;

/** The radius of a patch without any finite vertex: no ray comes as near. */
constexpr double nothingToHit = -std::numeric_limits<double>::infinity();

/** Whether a line comes as near to a point as a radius; also when that cannot be told (NaN). */
bool comesNear(const SbLine& line, const SbVec3f& center, double radius) {
    const SbVec3f toCenter = center - line.getPosition();
    const double distance = toCenter.cross(line.getDirection()).length();
    return !(distance > radius + rounding * toCenter.length());
}

/** The eye in the coordinates of what is being drawn, as HyperboloidPolarity takes it. */
SbVec4d eyeOf(SoState* state) {
    const SbViewVolume& volume = SoViewVolumeElement::get(state);
    const bool isParallel = volume.getProjectionType() == SbViewVolume::ORTHOGRAPHIC;
    const SbVec3f place =
        isParallel ? -volume.getProjectionDirection() : volume.getProjectionPoint();
    const SbDPMatrix toObject = SbDPMatrix(SoModelMatrixElement::get(state)).inverse();
    SbVec4d eye;
    toObject.multVecMatrix(SbVec4d(place[0], place[1], place[2], isParallel ? 0 : 1), eye);
    return eye;
}

} // namespace

HyperboloidMesh::HyperboloidMesh(const VertexGrid& grid) {
    verticesPerRow = grid.rows;
    verticesPerColumn = grid.columns;
}

VertexGrid HyperboloidMesh::grid() const {
    return {verticesPerColumn.getValue(), verticesPerRow.getValue()};
}

void HyperboloidMesh::computeBBox(SoAction* action, SbBox3f& box, SbVec3f& center) {
    const auto* coordinates = SoCoordinateElement::getInstance(action->getState());
    const SbVec3f* points = coordinates->getArrayPtr3();
    const auto vertexCount = static_cast<int>(grid().vertexCount());
    box.makeEmpty();
    for (int vertex = 0; vertex < std::min(vertexCount, coordinates->getNum()); ++vertex) {
        if (isFinite(points[vertex])) {
            box.extendBy(points[vertex]);
        }
    }
    if (!box.isEmpty()) {
        center = box.getCenter();
    }
}

void HyperboloidMesh::rayPick(SoRayPickAction* action) {
    if (!shouldRayPick(action)) {
        return;
    }
    computeObjectSpaceRay(action);
    withVertices(action, [&](const SbVec3f* points, const SbVec3f* normals) {
        updateBands(points);
        for (const Band& band : bands) {
            pickInBand(action, band, points, normals);
        }
    });
}

template <typename Use>
void HyperboloidMesh::withVertices(SoAction* action, Use use) {
    const SoCoordinateElement* coordinates = nullptr;
    const SbVec3f* normals = nullptr;
    getVertexData(action->getState(), coordinates, normals, TRUE);
    const bool generatesNormals = normals == nullptr;
    if (generatesNormals) {
        normals = generateAndReadLockNormalCache(action->getState())->getNormals();
    }
    use(coordinates->getArrayPtr3(), normals);
    if (generatesNormals) {
        readUnlockNormalCache();
    }
}

void HyperboloidMesh::GLRender(SoGLRenderAction* action) {
    if (!(SoLazyElement::getTransparency(action->getState(), 0) > 0)) {
        SoQuadMesh::GLRender(action);
        return;
    }
    if (!shouldGLRender(action)) {
        return;
    }
    SoMaterialBundle colors(action);
    colors.sendFirst();
    const SbVec4d plane = polarity.planeBeforeFarWall(eyeOf(action->getState()));
    withVertices(action, [&](const SbVec3f* points, const SbVec3f* normals) {
        const HyperboloidWalls walls(points, verticesPerRow.getValue(),
                                     verticesPerColumn.getValue(), plane);
        walls.draw([&](int strip, int first, int last) {
            drawRun(strip, first, last, points, normals, colors);
        });
    });
}

void HyperboloidMesh::drawRun(int strip, int first, int last, const SbVec3f* points,
                              const SbVec3f* normals, SoMaterialBundle& colors) const {
    const int rows = verticesPerRow.getValue();
    glBegin(GL_QUAD_STRIP);
    for (int row = first; row <= last; ++row) {
        for (const int vertex : {strip * rows + row, (strip + 1) * rows + row}) {
            colors.send(vertex, TRUE);
            glNormal3fv(normals[vertex].getValue());
            glVertex3fv(points[vertex].getValue());
        }
    }
    glEnd();
}

void HyperboloidMesh::updateBands(const SbVec3f* points) {
    if (points == boundedPoints) {
        return;
    }
    boundedPoints = points;
    bands.clear();
    for (int strip = 0; strip < grid().columns - 1; strip += patchSize) {
        Band band;
        for (int quad = 0; quad < grid().rows - 1; quad += patchSize) {
            band.push_back(createPatch(strip, quad, points));
        }
        bands.push_back(std::move(band));
    }
}

HyperboloidMesh::Patch HyperboloidMesh::createPatch(int firstStrip, int firstQuad,
                                                    const SbVec3f* points) const {
    const VertexGrid vertices = grid();
    Patch patch{firstStrip,       std::min(firstStrip + patchSize, vertices.columns - 1),
                firstQuad,        std::min(firstQuad + patchSize, vertices.rows - 1),
                SbVec3f(0, 0, 0), nothingToHit};
    SbBox3f box;
    for (int column = patch.firstStrip; column <= patch.lastStrip; ++column) {
        for (int row = patch.firstQuad; row <= patch.lastQuad; ++row) {
            const SbVec3f& point = points[vertices.index(column, row)];
            if (isFinite(point)) {
                box.extendBy(point);
            }
        }
    }
    if (!box.isEmpty()) {
        patch.center = box.getCenter();
        patch.radius = (1 + rounding) * (box.getMax() - patch.center).length();
    }
    return patch;
}

void HyperboloidMesh::pickInBand(SoRayPickAction* action, const Band& band, const SbVec3f* points,
                                 const SbVec3f* normals) {
    Band near;
    const SbLine ray = action->getLine();
    std::copy_if(band.begin(), band.end(), std::back_inserter(near),
                 [&](const Patch& patch) { return comesNear(ray, patch.center, patch.radius); });
    if (near.empty()) {
        return;
    }
    for (int strip = near.front().firstStrip; strip < near.front().lastStrip; ++strip) {
        for (const Patch& patch : near) {
            pickInStrip(action, strip, patch, points, normals);
        }
    }
}

void HyperboloidMesh::pickInStrip(SoRayPickAction* action, int strip, const Patch& patch,
                                  const SbVec3f* points, const SbVec3f* normals) {
    const VertexGrid vertices = grid();
    SoFaceDetail faceDetail;
    faceDetail.setPartIndex(strip);
    bool isOpen = false;
    for (int row = patch.firstQuad; row <= patch.lastQuad; ++row) {
        const int left = vertices.index(strip, row);
        const int right = vertices.index(strip + 1, row);
        // The library takes every ray for a hit of a triangle that is not finite: leave those out.
        const bool isDrawn = isFinite(points[left]) && isFinite(points[right]);
        if (isOpen && !isDrawn) {
            endShape();
        } else if (!isOpen && isDrawn) {
            beginShape(action, QUAD_STRIP, &faceDetail);
        }
        isOpen = isDrawn;
        if (isDrawn) {
            // This pair of vertices completes the quadrilateral that began with the pair before.
            faceDetail.setFaceIndex(std::max(row - 1, 0));
            sendVertex(left, points, normals);
            sendVertex(right, points, normals);
        }
    }
    if (isOpen) {
        endShape();
    }
}

void HyperboloidMesh::sendVertex(int index, const SbVec3f* points, const SbVec3f* normals) {
    SoPointDetail detail;
    detail.setCoordinateIndex(index);
    detail.setMaterialIndex(index);
    detail.setNormalIndex(index);
    SoPrimitiveVertex vertex;
    vertex.setDetail(&detail);
    vertex.setMaterialIndex(index);
    vertex.setPoint(points[index]);
    vertex.setNormal(normals[index]);
    shapeVertex(&vertex);
}
