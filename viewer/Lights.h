#pragma once

#include <Inventor/SbVec3f.h>

class SoDirectionalLight;
class SoEnvironment;

/** Makers of white light. Every returned node is new and unreferenced. */
namespace Lights {

/**
 * A white light from far away.
 *
 * @param intensity its brightness, 0 to 1
 * @param direction where it shines to, of any length but 0
 */
SoDirectionalLight* createDirectionalLight(float intensity, const SbVec3f& direction);

/** The light that the examiner viewer shines with from beside the eye, in the camera's axes. */
SoDirectionalLight* createHeadlight();

/** White light from everywhere, of a brightness of 0 to 1. */
SoEnvironment* createEnvironment(float ambient);

} // namespace Lights
