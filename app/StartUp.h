#pragma once

class QPixmap;
class QSplashScreen;
class QWidget;

/** What the user sees until the first window can draw. */
namespace StartUp {

/** What the splash shows; the application object must exist. */
QPixmap splashPicture();

/** Shows the splash with its message and returns once it is on the screen. */
void showSplash(QSplashScreen& splash);

/** Closes the splash as soon as the shown main window is on the screen. */
void finishSplash(QSplashScreen& splash, QWidget& mainWindow);

} // namespace StartUp
