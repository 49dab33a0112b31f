#pragma once

/**
 * OpenGL contexts for Coin's off-screen renderer.
 *
 * Coin's own off-screen contexts ask the X server for indirect rendering, which present-day servers
 * refuse. Coin lets a program supply the contexts instead; ours are Qt's, drawing into a
 * framebuffer object, and work wherever the views on the screen do.
 */
namespace OffscreenContexts {

/** Lets every off-screen renderer of this process use such contexts. May be called repeatedly. */
void install();

} // namespace OffscreenContexts
