#pragma once

#include "app/MainWindow.h"

#include <vector>

class HelixFrame;
class HyperboloidFrame;
class SoQtGeneralViewerFrame;

/** The main window on the screen, its four views drawn. */
class ShownWindow {
public:
    /**
     * @param grid          columns and rows of the surfaces
     * @param keepsPictures whether the views keep pictures of their surfaces
     */
    ShownWindow(int grid, bool keepsPictures);
    ~ShownWindow() = default;
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

    MainWindow& mainWindow() { return window; }
    HyperboloidFrame& u() const;
    HelixFrame& helix() const;
    /** U, X, M and the helix. */
    std::vector<SoQtGeneralViewerFrame*> views() const;
    /** How often the U view has been drawn. */
    int drawnFrames() const { return frames; }

private:
    void countFrames();

    MainWindow window;
    int frames = 0;
};
