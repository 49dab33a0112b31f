#pragma once

#include "math/Constants.h"

#include <array>

/**
 * The ring that round decorations are made of: points at even steps of a full turn.
 *
 * One step less than points: the last point repeats the first, and the ring closes.
 */
namespace Ring {

constexpr int pointCount = 30;
/** Steps of a full turn. */
constexpr int stepCount = pointCount - 1;
/** The angle between two points, in radians. */
constexpr double step = Constants::fullTurn / stepCount;

/** A point of the ring of radius 1. */
struct Direction {
    double cosine;
    double sine;
};

/** cos and sin of the angles k 2 pi / stepCount, computed in double. */
const std::array<Direction, pointCount>& directions();

} // namespace Ring
