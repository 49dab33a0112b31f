#pragma once

#include <array>

/** The names under which the hyperboloid's parts stand in a scene. */
namespace HyperboloidNames {

/** The surface with its material and coordinates. */
constexpr const char* surface = "Hyperboloid";
/** The surface's mesh; a pick on it, and on nothing else, chooses a vertex. */
constexpr const char* mesh = "HyperboloidMesh";

/** The u3 axis: a tube line and its arrow cone. */
constexpr const char* u3Axis = "U3Axis";
/** The four lines of constant u3, each a tube line. */
constexpr const char* u3ConstAxis = "U3ConstAxis";
/** One tube line, and the axis glyph of a frame. */
constexpr const char* axis = "Axis";
constexpr const char* cone = "Cone";
constexpr const char* uHat = "uHat";
constexpr const char* center = "Center";

/** What is drawn beside the surface, in the order in which a new drawing removes the old. */
constexpr std::array<const char*, 4> decorations{center, uHat, u3ConstAxis, u3Axis};

} // namespace HyperboloidNames
