#pragma once

#include <string>

/**
 * OpenGL contexts for Coin's off-screen renderer that need neither a display nor an X server.
 *
 * They are EGL's, without any surface, drawing into framebuffer objects.
 */
namespace SurfacelessContexts {

/**
 * Lets every off-screen renderer of this process use such contexts.
 *
 * @return empty, or why there are none; then nothing has changed
 */
std::string install();

} // namespace SurfacelessContexts
