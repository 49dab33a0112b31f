#pragma once

#include <cstdio>

class SoNode;

/** Scenes as files for other programs, by the scene library's own writers. */
namespace SceneExport {

enum class Format {
    /** Open Inventor, as text (.iv). */
    openInventor,
    /** VRML97 (.wrl), which knows no shaders. */
    vrml
};

/**
 * Writes a scene to an open file.
 *
 * @return false, and nothing is written, for VRML when a point is not finite: the library's
 *         conversion would look for it for ever
 */
bool write(SoNode& scene, Format format, std::FILE* file);

} // namespace SceneExport
