#pragma once

#include <memory>
#include <string>

class QGuiApplication;

/**
 * Where pictures are drawn: by EGL without any display, or else on the display that there is.
 *
 * EGL comes first even where DISPLAY names a display: the same call makes the same picture with and
 * without one, and no X server, which may be at the far end of a network, is loaded with it.
 *
 * It must live as long as pictures are drawn.
 */
class DrawingContexts {
public:
    DrawingContexts();
    ~DrawingContexts();
    DrawingContexts(const DrawingContexts&) = delete;
    DrawingContexts& operator=(const DrawingContexts&) = delete;

    /**
     * Provides off-screen renderers with contexts. That a display is taken is told on standard
     * error.
     *
     * @return empty, or that there is no OpenGL, why, and what to install
     */
    std::string open();

private:
    /** Takes the display; returns why it cannot be taken. */
    std::string openDisplay();

    /** Only where the display is needed. */
    std::unique_ptr<QGuiApplication> application;
};
