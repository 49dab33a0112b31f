#pragma once

#include <cstdio>

class SoNode;

/**
 * Scenes as files for other programs, by the scene library's own writers. Left out is what is at no
 * finite place: nobody could show it, no reader takes such a number, and the library's conversion
 * would look for such a point for ever.
 */
namespace SceneExport {

enum class Format {
    /** Open Inventor, as text (.iv). */
    openInventor,
    /** VRML97 (.wrl), which knows no shaders. */
    vrml
};

/** Writes a scene, which stays as it is, to an open file. */
void write(SoNode& scene, Format format, std::FILE* file);

} // namespace SceneExport
