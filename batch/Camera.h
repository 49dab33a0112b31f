#pragma once

#include "batch/BatchOptions.h"
#include "scene/SceneNodes.h"

class SoCamera;
class SoNode;

/** Cameras of pictures. */
namespace Camera {

/**
 * The camera of a document's viewpoint. It looks at the middle of the document with the start
 * values, from so far that the smallest ball around it just fits, and `zoom` times nearer; a
 * perspective camera sees the same height there as an orthographic one.
 *
 * @param scene the document as it is; where the viewpoint is fitted, it takes the place of the
 *              document with the start values
 */
NodePointer<SoCamera> of(Document document, const BatchOptions& options, SoNode& scene);

/**
 * A vector of the same direction whose length can be computed, its largest coordinate 0.5 to 1 in
 * size: times a power of 2, so that it has the same digits. The vector 0 stays.
 */
SbVec3f scaled(const SbVec3f& vector);

} // namespace Camera
