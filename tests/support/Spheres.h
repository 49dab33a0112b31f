#pragma once

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "tests/support/SceneReader.h"

/** The place of a helix's sphere in a space. */
inline SbVec3f spherePosition(const HyperboloidFrame& frame, const HelixFrame& helix) {
    const SoSeparator* sphere =
        SceneReader::childNamed(SceneReader::phongBranch(*frame.getSceneRoot()), helix.getName());
    return SceneReader::child<SoTransform>(*sphere, 1)->translation.getValue();
}
