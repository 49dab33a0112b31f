#pragma once

#include "scene/SceneNodes.h"

class SbViewportRegion;
class SoCamera;
class SoNode;

/** Cameras whose clipping planes enclose what they look at. */
namespace FittedCamera {

/**
 * A copy of a camera whose clipping planes enclose a scene as it is now, placed as the viewer on
 * the screen places those of its own camera before it draws. A scene behind a perspective camera
 * and an empty one leave the planes where they are.
 *
 * @param camera stands above the scene, under no transformation
 * @param region what the scene is drawn into; some shapes are as large as the screen makes them
 */
NodePointer<SoCamera> copyOf(const SoCamera& camera, SoNode& scene, const SbViewportRegion& region);

} // namespace FittedCamera
