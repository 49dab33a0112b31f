#pragma once

#include "scene/SceneNodes.h"

class SoCamera;
class SoGroup;
class SoLight;
class SoNode;
class SoSeparator;

/**
 * What stands around a scene, from the outside in, for it to be seen: both sides of its surfaces
 * are lit, by a headlight that shines where the camera looks, and the camera.
 *
 *     hints          both sides lit
 *     headlight      before the camera, and so turning with it
 *     camera
 *     scene
 *
 * The viewer on the screen has such a graph around its scene, and a picture gets one of its own.
 */
namespace SeenScene {

/** Puts in front what a viewer's graph of headlight, camera and scene lacks. To be called once. */
void lightBothSides(SoGroup& headlightCameraAndScene);

/** A new graph around a scene. Without a headlight (null) the scene is lit by its own lights. */
NodePointer<SoSeparator> around(SoNode* scene, SoLight* headlight, SoCamera* camera);

} // namespace SeenScene
