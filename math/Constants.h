#pragma once

/** Numbers that the models share, as doubles to the last bit. */
namespace Constants {

constexpr double pi = 3.141592653589793;
/** Two pi: a full turn in radians. */
constexpr double fullTurn = 6.283185307179586;

} // namespace Constants
