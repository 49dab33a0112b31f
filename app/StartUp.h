#pragma once

class QSplashScreen;
class QWidget;

/** What has to be settled around the application object before the first window can draw. */
namespace StartUp {

/**
 * Chooses the window system and the scaling that the OpenGL views work with; to be called before
 * the application object exists. What the user has set in the environment stays.
 */
void prepareEnvironment();

/** Makes the folder PlugIns beside the program's own folder the only place for Qt's plug-ins. */
void setPlugInPath();

/** Shows the splash with its message and returns once it is on the screen. */
void showSplash(QSplashScreen& splash);

/** Closes the splash as soon as the shown main window is on the screen. */
void finishSplash(QSplashScreen& splash, QWidget& mainWindow);

} // namespace StartUp
