#pragma once

class HelixFrame;

/**
 * What the whole numbers of the helix window mean to a helix.
 *
 * Without a helix nothing happens: a helix window may outlive its helix and stay open beside
 * another kind of document.
 */
namespace HelixChanges {

// Each change is drawn at once. Lengths are in steps, precisions in vertices.
void setTubeRadius(HelixFrame* helix, int steps);
void setRibbonRange(HelixFrame* helix, int steps);
void setTurns(HelixFrame* helix, int turns);
void setLinePrecision(HelixFrame* helix, int verticesPerTurn);
void setTubePrecision(HelixFrame* helix, int verticesPerRing);

} // namespace HelixChanges
