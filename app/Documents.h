#pragma once

#include "app/HyperboloidTrio.h"

#include <QString>
#include <vector>

class FrameOwner;
class HelixFrame;
class HyperboloidFrame;
class QMdiArea;
class QMdiSubWindow;
class QWidget;
class SoQtGeneralViewerFrame;

/**
 * The documents in the document area: three hyperboloid frames from setUp() to the end, and helix
 * frames that come and go.
 */
class Documents {
public:
    /**
     * No documents yet.
     *
     * @param documentArea where they will be shown, with scroll bars when they do not fit
     * @param frameOwner   to whom the frames report
     */
    Documents(QMdiArea& documentArea, FrameOwner& frameOwner);

    /** Opens the frames of the three spaces and a first helix, tiled; to be called once. */
    void setUp();

    /**
     * Opens a helix made from the U frame's vertex 0, marks that vertex in the three spaces and
     * makes the helix the active document; without hyperboloid frames nothing happens.
     */
    void openHelix();

    /** A new hyperboloid frame with the start values, taken into the area but not shown. */
    HyperboloidFrame* createHyperboloid(int space, const char* viewerTitle);

    /** A new helix frame from the U frame's vertex 0, taken into the area but not shown. */
    HelixFrame* createHelix(bool closable);

    /** To be called when a helix frame dies: removes its spheres and unties every hyperboloid. */
    void helixDied(SbName name);

    HyperboloidTrio& hyperboloids() { return trio; }
    const HyperboloidTrio& hyperboloids() const { return trio; }

    /** Number of helix frames alive. */
    int helixCount() const { return livingHelices; }

    /** The helix frames in the area, the oldest first. */
    std::vector<HelixFrame*> helices() const;

    /** The frame in the active sub-window, null without one. */
    SoQtGeneralViewerFrame* active() const;

    /** Number of documents in the area. */
    int count() const;

    /** The oldest sub-window whose frame has this window title, null without one. */
    QMdiSubWindow* find(const QString& title) const;

    /**
     * Makes a sub-window the active one.
     *
     * @param window null, with which nothing happens; with what is no sub-window, none is active
     */
    void activate(QWidget* window);

    /** Stacks the documents in the order of their creation, the newest on top. */
    void stackInOrder();

    /** Closes what may be closed alone: the helices. */
    void closeHelices();

    /** Closes all documents, the helices first; false when one has refused. */
    bool closeAll();

    /** Destroys all documents, closed ones too that wait for the event loop. */
    void destroyAll();

private:
    void addFrame(SoQtGeneralViewerFrame* frame, const char* viewerTitle);

    QMdiArea& area;
    FrameOwner& owner;
    HyperboloidTrio trio;
    int livingHelices = 0;
};
