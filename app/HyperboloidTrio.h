#pragma once

#include "hyperboloid/HyperboloidParameters.h"

#include <Inventor/SbName.h>
#include <QPointer>
#include <array>
#include <vector>

class HelixFrame;
class HyperboloidFrame;

/**
 * The three hyperboloid frames, which are changed together and always in the order U, X, M: the X
 * and M frames take their colours from the U frame.
 *
 * There are none before setUp(), nor when the main window went on after a helix had refused to be
 * closed with it; then nothing is changed.
 */
class HyperboloidTrio {
public:
    /** Takes the frames in and makes them brothers. */
    void setUp(HyperboloidFrame* u, HyperboloidFrame* x, HyperboloidFrame* m);

    /** The frame of a space (Hyperboloid::USPACE, XSPACE or MSPACE), null without one. */
    HyperboloidFrame* of(int space) const;

    /** The frames that exist, in their order. */
    std::vector<HyperboloidFrame*> open() const;

    /** Gives all models the parameters and computes and draws the surfaces anew. */
    void setParameters(const HyperboloidParameters& parameters);

    // How the surfaces look, each value in 0 to 100; they are drawn anew.
    void setTransparency(int percent);
    void setLightness(int percent);
    void setSaturation(int percent);

    /** Adds a sphere of this name at a vertex of each frame. */
    void addSpheres(SbName name, int index);

    /**
     * Removes a helix's spheres; every frame forgets the helix it steers, whichever that is
     * (docs/kept-on-purpose.md).
     */
    void forgetHelix(SbName name);

    /**
     * Ties helices to the vertices of a rebuilt grid that VertexGrid::atSamePlace() gives, one
     * after the other; afterwards all frames steer the helix that the U frame steered before.
     *
     * @param oldVertexCount number of vertices of the U surface before it was rebuilt
     */
    void keepInPlace(const std::vector<HelixFrame*>& helices, int oldVertexCount);

    void setClosableAlone(bool closable);

private:
    std::array<QPointer<HyperboloidFrame>, 3> frames;
};
