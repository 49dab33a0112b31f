#pragma once

#include "viewer/SoQtGeneralViewerFrame.h"

#include <QPointer>
#include <array>

class HelixFrame;

/**
 * Which frame is the current one and which was it before, and the rule that ties a helix to a
 * hyperboloid frame.
 *
 * Frames may die at any time; a dead one reads as null.
 */
class ActiveFrames {
public:
    ActiveFrames();

    /**
     * Makes a frame the current one. A hyperboloid frame that comes directly after a helix frame
     * steers this helix from now on.
     *
     * @param frame the active frame; null when none is active, which changes nothing
     */
    void activate(SoQtGeneralViewerFrame* frame);

    /** The frame that was found active last, before the first one a frame that is never shown. */
    SoQtGeneralViewerFrame* current() const { return currentFrame; }

    /** The frame that was current before the last activation. */
    SoQtGeneralViewerFrame* previous() const { return previousFrame; }

    /** The current frame if it is a helix frame, else null. */
    HelixFrame* currentHelix() const;

private:
    /**
     * Two frames that are never shown. They take the numbers 0 and 1, so that the first visible
     * frame is "Viewer 2" and number 0 never belongs to a document, and there are two frames to
     * compare from the start.
     */
    std::array<SoQtGeneralViewerFrame, 2> placeholders;
    QPointer<SoQtGeneralViewerFrame> currentFrame;
    QPointer<SoQtGeneralViewerFrame> previousFrame;
};
