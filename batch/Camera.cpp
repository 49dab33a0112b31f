#include "batch/Camera.h"

#include "batch/ModelSet.h"
#include "batch/ShownDocument.h"
#include "viewer/DocumentScene.h"

#include <Inventor/SbMatrix.h>
#include <Inventor/SbRotation.h>
#include <Inventor/SbViewportRegion.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <algorithm>
#include <cmath>

namespace {

/** The turn from a camera's own axes, of which it looks along the negative third. */
SbRotation orientationOf(const Viewpoint& viewpoint) {
    SbVec3f back = -Camera::scaled(viewpoint.direction);
    back.normalize();
    SbVec3f right = Camera::scaled(viewpoint.up).cross(back);
    right.normalize();
    const SbVec3f up = back.cross(right);
    const SbMatrix axes(right[0], right[1], right[2], 0, up[0], up[1], up[2], 0, back[0], back[1],
                        back[2], 0, 0, 0, 0, 1);
    return {axes};
}

void seeAll(SoCamera& camera, SoNode& scene) {
    // Of a picture that is higher than wide the camera sees more when it is drawn.
    const SbViewportRegion square(1, 1);
    camera.viewAll(&scene, square);
}

/** Without the spheres of helices, which come later than the first view. */
void seeAllAtStart(SoCamera& camera, Document document) {
    BatchOptions start;
    ModelSet models(start.parameters, start);
    DocumentScene scene;
    ShownDocument::drawWithoutSphere(document, models, scene);
    seeAll(camera, *scene.getRoot());
}

NodePointer<SoCamera> perspectiveOf(const SoOrthographicCamera& seen) {
    NodePointer<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    const float distance =
        seen.height.getValue() / 2 / std::tan(camera->heightAngle.getValue() / 2);
    SbVec3f direction;
    seen.orientation.getValue().multVec(SbVec3f(0, 0, -1), direction);
    camera->orientation = seen.orientation.getValue();
    camera->focalDistance = distance;
    camera->position =
        seen.position.getValue() + direction * (seen.focalDistance.getValue() - distance);
    return camera;
}

} // namespace

SbVec3f Camera::scaled(const SbVec3f& vector) {
    const float largest =
        std::max({std::fabs(vector[0]), std::fabs(vector[1]), std::fabs(vector[2])});
    int exponent = 0;
    std::frexp(largest, &exponent);
    return {std::ldexp(vector[0], -exponent), std::ldexp(vector[1], -exponent),
            std::ldexp(vector[2], -exponent)};
}

NodePointer<SoCamera> Camera::of(Document document, const BatchOptions& options, SoNode& scene) {
    const Viewpoint& viewpoint = options.viewpoint;
    const NodePointer<SoOrthographicCamera> camera(new SoOrthographicCamera);
    camera->orientation = orientationOf(viewpoint);
    if (viewpoint.fitted) {
        seeAll(*camera, scene);
    } else {
        seeAllAtStart(*camera, document);
    }
    camera->height = camera->height.getValue() / static_cast<float>(viewpoint.zoom);
    return viewpoint.perspective ? perspectiveOf(*camera) : NodePointer<SoCamera>(camera);
}
