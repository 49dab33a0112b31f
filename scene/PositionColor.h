#pragma once

#include "math/Triple.h"

/**
 * The colour of a position (x, y, z), each channel in 0 to 0.8:
 *
 *     red   = 0.8 |sin sqrt|yx + zy||
 *     green = 0.8 |sin sqrt|zx + yz||
 *     blue  = 0.8 |sin sqrt|xz + yx||
 *
 * Single precision up to the sine; the factor 0.8 is a double. NaN where a sum is not finite.
 */
FloatTriple positionColor(const FloatTriple& position);
