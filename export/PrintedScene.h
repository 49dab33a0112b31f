#pragma once

#include "scene/SceneNodes.h"

#include <Inventor/SbViewportRegion.h>

class SoCamera;
class SoLight;
class SoNode;
class SoSeparator;

/** Scenes as they are printed. */
namespace PrintedScene {

/** What a scene is seen by. */
struct View {
    const SoCamera& camera;
    /** Null when the scene is lit by its own lights only. */
    SoLight* headlight;
    /** What the scene is seen in; some shapes are as large as the screen makes them. */
    SbViewportRegion region;
};

/**
 * A new graph of a scene under a view's light and camera, which are not part of the scene itself.
 * The camera's clipping planes enclose the scene as it is now, see FittedCamera.
 *
 * @param lineWidth the width in print, in pixels, of what is one pixel wide on the screen
 */
NodePointer<SoSeparator> of(SoNode* scene, const View& view, float lineWidth);

} // namespace PrintedScene
