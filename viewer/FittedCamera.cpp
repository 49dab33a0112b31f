#include "viewer/FittedCamera.h"

#include <Inventor/SbXfBox3f.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <algorithm>
#include <cmath>

namespace {

/** Room around the scene, as a share of a plane's distance. */
constexpr float slack = 0.001F;
/** Under a perspective, how many times nearer than the far plane the near one may be: 2^9. */
constexpr float largestDepthRatio = 512;

/** The smallest box along the camera's axes around a scene. */
SbBox3f boxSeenBy(SoCamera& camera, SoNode& scene, const SbViewportRegion& region) {
    // What is as large as the screen makes it depends on the camera, too.
    const NodePointer<SoSeparator> seen(new SoSeparator);
    seen->addChild(&camera);
    seen->addChild(&scene);
    SoGetBoundingBoxAction action(region);
    action.apply(seen.get());
    SbXfBox3f box = action.getXfBoundingBox();
    SbMatrix toCamera;
    toCamera.setTranslate(-camera.position.getValue());
    box.transform(toCamera);
    toCamera.setRotate(camera.orientation.getValue().inverse());
    box.transform(toCamera);
    return box.project();
}

} // namespace

NodePointer<SoCamera> FittedCamera::copyOf(const SoCamera& camera, SoNode& scene,
                                           const SbViewportRegion& region) {
    NodePointer<SoCamera> fitted(static_cast<SoCamera*>(camera.copy()));
    const SbBox3f box = boxSeenBy(*fitted, scene, region);
    // A camera looks along its negative third axis.
    float nearest = -box.getMax()[2];
    const float farthest = -box.getMin()[2];
    const bool perspective = camera.isOfType(SoPerspectiveCamera::getClassTypeId());
    if (box.isEmpty() || (perspective && farthest <= 0)) {
        return fitted;
    }
    if (perspective) {
        nearest = std::max(nearest, farthest / largestDepthRatio);
    }
    fitted->nearDistance = nearest - slack * std::fabs(nearest);
    fitted->farDistance = farthest + slack * std::fabs(farthest);
    return fitted;
}
