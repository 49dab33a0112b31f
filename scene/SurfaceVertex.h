#pragma once

#include "math/Triple.h"

/**
 * A vertex of the surface, as it travels from the pick or the key to the helix that it shapes.
 */
struct SurfaceVertex {
    /** Its index on the surface's grid, the same in all three spaces. */
    int index;
    /** Its coordinates in U space, whichever space it was chosen in. */
    FloatTriple u;
    /** Its energy colour: red, green, blue in 0 to 1. */
    FloatTriple color;
};
