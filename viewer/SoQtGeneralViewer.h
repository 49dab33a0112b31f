#pragma once

#include "scene/SceneNodes.h"
#include "viewer/DocumentRoot.h"
#include "viewer/SurfacePicture.h"
#include "viewer/WindowCover.h"
#include "viewer/WindowReturn.h"

#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>

class DocumentScene;
class SoQtGeneralViewerFrame;

/**
 * The examiner viewer of a frame: orthographic at first, without a popup menu, and drawing the same
 * way while the camera moves as when it stands still.
 *
 * Scene events go first through three keys of the viewer's own (space: next draw style, P:
 * perspective camera, O: orthographic camera), then to the frame, then to the examiner.
 */
class SoQtGeneralViewer : public SoQtExaminerViewer {
public:
    /**
     * @param owner the frame that the viewer is shown in and reports to; it outlives the viewer
     * @param name  the widget's name
     * @param embed non-zero when the viewer is a child of the frame, zero for a window of its own
     */
    SoQtGeneralViewer(SoQtGeneralViewerFrame* owner, const char* name, int embed);
    ~SoQtGeneralViewer() override;
    SoQtGeneralViewer(const SoQtGeneralViewer&) = delete;
    SoQtGeneralViewer& operator=(const SoQtGeneralViewer&) = delete;

    /** Lights both sides of the scene's surfaces; to be called once, when the scene is set. */
    void lightBothSides();

    /**
     * Keeps the picture of what follows the scene's look, from one frame to the next, as long as it
     * stays the same; to be called once, when the scene is set. It changes no picture.
     */
    void keepSurfaceOf(const DocumentScene& scene);

    /**
     * Whether pictures are kept, as they are at first unless TORVANE_KEEP_PICTURES is set to 0 in
     * the environment. Without them every frame is drawn wholly: for drivers whose copies of
     * framebuffers cannot be relied on.
     */
    void setKeepsPictures(bool keeps) { keepsPictures = keeps; }

    /** Whether the next click chooses a point to fly to. */
    SbBool isSeekMode() const;

protected:
    SbBool processSoEvent(const SoEvent* event) override;
    /**
     * Draws the scene. After a change of size it only prepares the window, and the scene is drawn
     * once, when the toolkit paints the widget in its new size. What cannot be seen is not drawn at
     * all: a view in a minimised window or document, behind other documents, on another desktop,
     * behind the windows of other programs.
     * It is drawn when it is seen again, and then a spin goes on as if it had never paused.
     */
    void redraw() override;

    /**
     * Called when the window system asks for the window to be painted. What was hidden, or outside
     * of the window, need not have been drawn before, and so not have been kept.
     */
    SbBool glScheduleRedraw() override;

private:
    /** Handles the viewer's own keys; returns whether the event was one of them. */
    bool processKey(const SoEvent* event);

    bool isInSight() const;

    /** Whether a frame is one drawing of the scene into an empty back buffer. */
    bool drawsInOneGo() const;

    /**
     * Software OpenGL learns of a new window size only when buffers are swapped: without this, the
     * first frame after a change of size is drawn into buffers of the old size and never seen.
     */
    void presentEmptyFrame();

    /** Under the toolkit's scaling SoQt makes the OpenGL widget larger than the room it has. */
    void fitIntoParent();

    SoQtGeneralViewerFrame* frame;
    WindowReturn windowReturn;
    WindowCover cover;
    SbVec2s presentedSize{0, 0};
    NodePointer<DocumentRoot> root;
    SurfacePicture surfacePicture;
    bool keepsPictures;
};
