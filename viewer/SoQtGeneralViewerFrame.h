#pragma once

#include "viewer/DocumentScene.h"

#include <Inventor/SbName.h>
#include <Inventor/SbVec3f.h>
#include <QFrame>
#include <QString>
#include <memory>
#include <string>

class FrameOwner;
class QCloseEvent;
class SoDirectionalLight;
class SoEnvironment;
class SoEvent;
class SoQtGeneralViewer;
class SoSeparator;
class SoShaderProgram;

/**
 * The base of every document: a frame with a scene, an examiner viewer that shows it, a running
 * number and a title.
 *
 * A subclass fills the scene in Draw() and reacts to events in processSoEvent().
 */
class SoQtGeneralViewerFrame : public QFrame {
    Q_OBJECT

public:
    /** Number of frames ever constructed; the next frame's number. Never lowered. */
    static int instances;

    /**
     * A frame without scene or viewer: initialize() makes them.
     *
     * @param closable whether the frame may be closed by itself
     * @param owner    the window that created the frame and outlives it, or null
     */
    SoQtGeneralViewerFrame(bool closable, FrameOwner* owner);
    ~SoQtGeneralViewerFrame() override;
    SoQtGeneralViewerFrame(const SoQtGeneralViewerFrame&) = delete;
    SoQtGeneralViewerFrame& operator=(const SoQtGeneralViewerFrame&) = delete;

    /** Called by initialize() before the first Draw(); does nothing here. */
    virtual void SetEventHandlers();

    /** Offers a scene event to the frame; non-zero when it is consumed. Consumes nothing here. */
    virtual int processSoEvent(const SoEvent* event);

    /** Builds the scene and the viewer; to be called once, and before setTitle(). */
    virtual void initialize();

    /** Puts the frame's nodes into the scene; does nothing here. */
    virtual void Draw();

    /** Draws anew after a change; does nothing here. */
    virtual void reDraw();

    /** Goes on to the next look: Phong, solid, lines, and Phong again. */
    virtual void toggleDrawStyle();

    int getId() const { return id; }

    /** The root of the scene, null before initialize(); see DocumentScene for what is below it. */
    SoSeparator* getSceneRoot() const { return root; }

    /** The viewer, null before initialize(). */
    SoQtGeneralViewer* getViewer() const { return viewer.get(); }

    /** The name by which the kinds of frames are told apart, see each class's Type(). */
    std::string GetType() const { return type; }

    /** Gives the viewer a title; the frame's own window title stays "Viewer " and its number. */
    void setTitle(const char* text);

    /**
     * The title last given to the viewer, empty before. SoQt itself answers with the title of the
     * top-level window around the viewer.
     */
    QString viewerTitle() const { return lastViewerTitle; }

    void setClosableAlone(bool closable) { closableAlone = closable; }

    /** The smallest size of the frame in pixels, the same for all frames. */
    QSize minimumSize() const;

    /** Removes the first node of this name from the parent, if it is a child of the parent. */
    void removeSceneChild(SbName name, SoSeparator* parent);

    /** A new white light that shines in the given direction, unreferenced. */
    SoDirectionalLight* createDirectionalLight(float intensity, SbVec3f direction);

    /** A new environment with white ambient light of the given intensity, unreferenced. */
    SoEnvironment* createEnvironment(float ambient);

    /** A new GLSL program from two resources, unreferenced; see ShaderPrograms. */
    SoShaderProgram* createShaderProgram(const char* vertexPath, const char* fragmentPath);

    /** Adds a backdrop with a greeting to the scene. */
    void setBackground();

protected:
    void closeEvent(QCloseEvent* event) override;

    int id;
    QString title;
    bool closableAlone;
    std::string type;
    /** The scene, null before initialize(). */
    std::unique_ptr<DocumentScene> scene;
    // Where subclasses put their nodes: parts of the scene, null before initialize().
    SoSeparator* root = nullptr;
    SoSeparator* phongSeparator = nullptr;
    SoSeparator* drawStyleSeparator = nullptr;
    std::unique_ptr<SoQtGeneralViewer> viewer;
    FrameOwner* mainWindow;

private:
    void buildScene();
    void createViewer();
    void enableMultisampling();

    QString lastViewerTitle;
};
