#pragma once

/** The scene names by which the parts of a helix and its spheres are found again. */
namespace HelixNames {

constexpr const char* line = "Helix_Line";
constexpr const char* tube = "Helix_Tube";
constexpr const char* ribbon = "Helix_Ribbon";

/** A helix frame's name, which its spheres bear, is this and a number. */
constexpr const char* framePrefix = "Helix_";

} // namespace HelixNames
