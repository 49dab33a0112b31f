#pragma once

#include "hyperboloid/Hyperboloid.h"
#include "viewer/SoQtGeneralViewerFrame.h"

#include <QPointer>

class HelixFrame;
class SoKeyboardEvent;
class SoMouseButtonEvent;
class SoPickedPoint;

/** Does nothing; kept beside the frame's operation of the same name. */
void toggleDrawStyle();

/**
 * The document that shows the hyperboloid of one space, and lets the user choose a vertex.
 *
 * The three frames (U, X and M space) know each other as brothers. A vertex index names the same
 * parameter point in all three: choosing a vertex in one frame moves the tied helix's sphere in all
 * of them and gives the helix the vertex's U coordinates and colour. Vertices are numbered as in
 * VertexGrid.
 */
class HyperboloidFrame : public SoQtGeneralViewerFrame, public Hyperboloid {
    Q_OBJECT

public:
    // Directions of moveSphere().
    static const int UP;
    static const int DOWN;
    static const int RIGHT;
    static const int LEFT;

    /**
     * @param K1,K2,K3,K13,K23,U1,U2,U3 the parameters, see Hyperboloid
     * @param whichSpace Hyperboloid::USPACE, XSPACE or MSPACE
     * @param closable   whether the frame may be closed by itself
     * @param owner     the window that created the frame, or null
     */
    HyperboloidFrame(float K1, float K2, float K3, float K13, float K23, float U1, float U2,
                     float U3, int whichSpace, bool closable, FrameOwner* owner);

    static std::string Type() { return "HyperboloidFrame"; }

    /** Makes the brothers known (this frame is one of them) and takes over the U frame's colours.
     */
    void setBrother(HyperboloidFrame* u, HyperboloidFrame* x, HyperboloidFrame* m);

    /** The brother of a space; the U brother for any value that is no space. */
    HyperboloidFrame* getBrother(int whichSpace) const;

    // The tied helix: the one that picks and keys in this frame steer. Null when there is none.
    void SetPreviousHelix(HelixFrame* helix);
    HelixFrame* GetPreviousHelix() const;
    void PrevHelixDead();

    /**
     * In X and M space: copies the U brother's colours, vertex by vertex, when its tables are of
     * the same grid as this frame's.
     */
    void changeColors();

    using SoQtGeneralViewerFrame::reDraw;

    /**
     * Replaces the surface and the decorations; the helices' spheres stay.
     *
     * @param reinit     give the tables the grid's size and compute the points
     * @param regenerate compute the colours from the energies
     */
    void reDraw(bool reinit, bool regenerate);

    /** Adds the surface and the decorations to the scene. */
    void Draw() override;

    // Appearance, each value in 0 to 100. Transparency needs no colours computed, only the
    // material.
    void setSaturation(int value, bool redraw);
    void setLightness(int value, bool redraw);
    void setTransparency(int value, bool redraw);

    /** Whether a picked point lies on the surface, rather than on a decoration or a sphere. */
    bool is_point_in_hyperboloid(const SoPickedPoint* point) const;

    /** The picked vertex's index, -1 for a point that is not on the surface. */
    int get_index(const SoPickedPoint* point) const;

    /** Adds a sphere at a vertex of this frame's space, in the vertex's colour. */
    void addNewSphere(SbName name, int index);

    /** Removes the sphere of this name. */
    void killSphere(SbName name);

    /** Moves the tied helix's sphere of this frame to a vertex; a helix must be tied. */
    void refresh_spheres(int index);

    /** Ties this frame's helix to all three brothers and moves its three spheres to a vertex. */
    void refresh_hypos(int index);

    /** Gives the tied helix the U coordinates and the colour of a vertex; a helix must be tied. */
    void refresh_helix(int index);

    /** Steps the tied helix to the neighbouring vertex; nothing happens when none is tied. */
    void moveSphere(int direction);

    /** Direction keys step the tied helix, mouse releases pick a vertex. */
    int processSoEvent(const SoEvent* event) override;

    /** Adds a blue axis along the third coordinate with a cone at its end. */
    void DrawAxis(double halfLength, double radius);

private:
    int processKey(const SoKeyboardEvent& event);
    int processMouseButton(const SoMouseButtonEvent& event);
    int pickVertex(const SoMouseButtonEvent& event) const;
    void chooseVertex(int index);

    QPointer<HelixFrame> tiedHelix;
    QPointer<HyperboloidFrame> uBrother;
    QPointer<HyperboloidFrame> xBrother;
    QPointer<HyperboloidFrame> mBrother;
};
