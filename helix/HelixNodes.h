#pragma once

class Helix;
class SoSeparator;

/**
 * The scene nodes of a helix: a material, a material binding where colours go by vertex,
 * coordinates and a shape under a separator named as HelixNames says. The helix's tables must have
 * the size of its counts; they are copied into the nodes. Every returned separator is new and
 * unreferenced.
 */
namespace HelixNodes {

/** The centre line as one open polyline, coloured by vertex. */
SoSeparator* createLine(const Helix& helix);

/** A mesh of one row per ring, in the helix's colour or coloured by vertex. */
SoSeparator* createTube(const Helix& helix);

/**
 * A mesh of rows of two, the centre line and the outer edge, coloured by vertex or
 * in the complement (1 - c) of the tube's colour, so that the two can be told apart.
 */
SoSeparator* createRibbon(const Helix& helix);

} // namespace HelixNodes
