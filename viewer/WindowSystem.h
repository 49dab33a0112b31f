#pragma once

/** What has to be settled around the application object for the OpenGL views to work. */
namespace WindowSystem {

/**
 * Chooses the window system and the scaling that the OpenGL views work with; to be called before
 * the application object exists. What the user has set in the environment stays.
 */
void prepareEnvironment();

/**
 * Makes the folder PlugIns beside the program's own folder the only place for Qt's plug-ins; to be
 * called once the application object exists.
 */
void setPlugInPath();

} // namespace WindowSystem
