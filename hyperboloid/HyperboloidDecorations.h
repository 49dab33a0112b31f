#pragma once

#include "hyperboloid/HyperboloidCoefficients.h"
#include "hyperboloid/HyperboloidSpaces.h"
#include "math/Triple.h"
#include "math/Vecteur.h"

#include <Inventor/SbName.h>

class SoGroup;
class SoSeparator;

/**
 * What is drawn beside the surface: the U3 axis, the rulings of constant u3, uHat, the centre and
 * an axis glyph.
 *
 * Each maker returns a new, unreferenced separator; nothing is kept. Lines are defined in U space
 * and carried into the space in which they are drawn.
 */
namespace HyperboloidDecorations {

/**
 * Two vectors perpendicular to v and to each other: unit vectors (-v1, v0, 0) and v x (-v1, v0, 0).
 *
 * For a v along the third axis they are (1, 0, 0) and (0, 1, 0), whatever v's sign.
 */
void findNormals(Vecteur v, Vecteur& nA, Vecteur& nB);

/** A tube of two rings (see Ring) from A to B, blue or red. */
SoSeparator* createTubeLine(Vecteur A, Vecteur B, float radius, bool blue);

/**
 * A blue cone on the base centre A whose apex lies `height` away on the far side from B.
 *
 * Points: the apex, the rim (a Ring), the base centre.
 */
SoSeparator* createCone(Vecteur A, Vecteur B, float radius, float height);

/**
 * The line u1 = u2 = 0, u3 in -range to range, as a blue tube with an arrow cone at -range.
 */
SoSeparator* createU3Axis(const HyperboloidSpaces& spaces, int space, float range, float radius);

/**
 * The four rulings of the quadric on which u3 is constant (-a/b or -c/d), as red tubes of
 * half-length `range`. Where another surface is drawn in the quadric's place they do not lie on
 * it. b = 0 or d = 0 gives infinite or NaN lines.
 */
SoSeparator* createU3ConstAxis(const HyperboloidSpaces& spaces, int space,
                               const HyperboloidCoefficients::Pnas& pnas, float range,
                               float radius);

/** The given marker in yellow at uHat. */
SoSeparator* createUHat(const HyperboloidSpaces& spaces, int space, SoGroup* marker);

/** The given marker in red at the centre of the quadric. */
SoSeparator* createCenter(const HyperboloidSpaces& spaces, int space, SoGroup* marker);

/** The given marker under this name at a vertex, in the vertex's colour. */
SoSeparator* createVertexMarker(const SbName& name, const FloatTriple& place,
                                const FloatTriple& color, SoGroup* marker);

/**
 * A blue tube of two rings along the third coordinate, from halfLength to -halfLength,
 * with a small cone at halfLength.
 */
SoSeparator* createAxisGlyph(double halfLength, double radius);

} // namespace HyperboloidDecorations
