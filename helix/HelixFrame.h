#pragma once

#include "helix/Helix.h"
#include "scene/SurfaceVertex.h"
#include "viewer/SoQtGeneralViewerFrame.h"

/**
 * The document that shows one helix as a tube and a ribbon.
 *
 * A helix belongs to one vertex of the hyperboloid. The frame's name ("Helix_" and a number, never
 * used twice in a run) is also the scene name of the three spheres that mark this vertex on the
 * hyperboloid frames.
 */
class HelixFrame : public SoQtGeneralViewerFrame {
    Q_OBJECT

public:
    /** Number of helix frames ever created; never lowered. */
    static int helix_nb;

    /**
     * @param u1,u2,u3         the vertex's coordinates in U space
     * @param red,green,blue   the vertex's colour, 0 to 1
     * @param index            the vertex's index on the hyperboloid's grid
     * @param closable         whether the frame may be closed by itself
     * @param owner            told when the frame dies; may be null
     */
    HelixFrame(float u1, float u2, float u3, float red, float green, float blue, int index,
               bool closable, FrameOwner* owner);
    /** The same for a vertex of the surface. */
    HelixFrame(const SurfaceVertex& vertex, bool closable, FrameOwner* owner);
    /** Tells the main window, which removes the helix's spheres; then the helix goes. */
    ~HelixFrame() override;
    HelixFrame(const HelixFrame&) = delete;
    HelixFrame& operator=(const HelixFrame&) = delete;

    /** Gives the frame the next name and ties it to a vertex. */
    void initialize_helix(int index);

    SbName getName() const;
    static std::string Type() { return "HelixFrame"; }
    int getIndex() const { return vertexIndex; }
    void SetVertexInd(int index) { vertexIndex = index; }
    const Helix& getHelix() const { return helix; }

    /** A helix frame reacts to no scene events of its own. */
    void SetEventHandlers() override;

    /** Replaces the tube and the ribbon in the scene; the centre line is not shown. */
    void Draw() override;

    using SoQtGeneralViewerFrame::reDraw;

    /** Samples the chosen tables anew, and those that wait to be filled, then draws. */
    void reDraw(bool line, bool tube, bool ribbon);

    /** Takes over the U coordinates, the index and the colour of another vertex, and draws. */
    void refresh(float u1, float u2, float u3, int index, float red, float green, float blue);
    void refresh(const SurfaceVertex& vertex);

    /** The U coordinates of the helix's vertex, in the words of showU(). */
    QString pointText() const;

    /** Shows a point of U space in the viewer's title, for example U = (0.5; 1; 0.25). */
    void showU(double u1, double u2, double u3);

    // Each setter stores its value, gives the tables their new size where that changes, and only if
    // `redraw` is set samples what depends on it and draws.
    void set_ribbon_range(double width, bool redraw);
    void set_tube_radius(double radius, bool redraw);
    void set_precision_tube(int verticesPerRing, bool redraw);
    void set_precision_line(int verticesPerTurn, bool redraw);
    void set_nturns(double turns, bool redraw);

private:
    Helix helix;
    int vertexIndex = 0;
    /** The vertex's coordinates in U space. */
    FloatTriple point;
    std::string name;
};
