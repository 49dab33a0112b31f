#pragma once

#include "tests/support/RedrawCounter.h"
#include "tests/support/SceneReader.h"
#include "tests/support/ViewDriver.h"
#include "viewer/SoQtGeneralViewer.h"

/** Compares what a frame shows with what it shows when every frame is drawn wholly. */
class KeptPictures {
public:
    explicit KeptPictures(SoQtGeneralViewerFrame& comparedFrame)
        : frame(&comparedFrame)
        , surfaces(SceneReader::drawStyleBranch(*comparedFrame.getSceneRoot())) {}

    /** What the screen shows when nothing is pending any more; not drawn anew. */
    QImage settled() {
        RedrawCounter::settle();
        return ViewDriver(*frame).grab();
    }

    /** What the screen shows after one more frame. */
    QImage shown() {
        frame->getViewer()->render();
        return settled();
    }

    /** What the screen shows after a frame that is drawn wholly. */
    QImage wholly() {
        QImage picture = drawnWholly(*frame);
        surfaces.take();
        return picture;
    }

    /** The same for a frame whose drawings nobody counts. */
    static QImage drawnWholly(SoQtGeneralViewerFrame& frame) {
        SoQtGeneralViewer& viewer = *frame.getViewer();
        viewer.setKeepsPictures(false);
        viewer.render();
        RedrawCounter::settle();
        QImage picture = ViewDriver(frame).grab();
        viewer.setKeepsPictures(true);
        return picture;
    }

    /** How often the surface has been drawn since it was last asked, or drawn wholly. */
    int drawnSurfaces() { return surfaces.take(); }

private:
    SoQtGeneralViewerFrame* frame;
    RedrawCounter surfaces;
};
