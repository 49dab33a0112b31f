#pragma once

class QLabel;
class QStatusBar;
class SoQtGeneralViewerFrame;

/**
 * Two permanent labels of the status bar: "steeredHelixLabel" and, at its right,
 * "viewerTitleLabel".
 */
class StatusLabels {
public:
    /** Adds the labels, empty, to a status bar, which owns them. */
    explicit StatusLabels(QStatusBar& bar);

    /**
     * Shows the viewer title of the active frame and, beside a hyperboloid, the window title and
     * the viewer title of the helix that it steers.
     *
     * @param active the active frame, or null
     */
    void show(const SoQtGeneralViewerFrame* active);

private:
    QLabel* steeredHelix;
    QLabel* viewerTitle;
};
