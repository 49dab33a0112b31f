#pragma once

class HelixFrame;

/**
 * What the whole numbers of the helix window mean to a helix.
 *
 * Without a helix nothing happens: a helix window may outlive its helix and stay open beside
 * another kind of document.
 */
namespace HelixChanges {

/** Steps of the tube radius and the ribbon range per unit of length. */
constexpr double stepsPerUnit = 10000.0;

// Each change is drawn at once. Lengths are in steps, precisions in vertices.
void setTubeRadius(HelixFrame* helix, int steps);
void setRibbonRange(HelixFrame* helix, int steps);
void setTurns(HelixFrame* helix, int turns);
void setLinePrecision(HelixFrame* helix, int verticesPerTurn);
void setTubePrecision(HelixFrame* helix, int verticesPerRing);

} // namespace HelixChanges
