#pragma once

#include <iosfwd>

class ByteTarget;
class Helix;
class Hyperboloid;

/**
 * The numbers behind a document as text: first the parameters, one a line, then the points, one a
 * line as x, y and z with four spaces between them.
 *
 * Every number has ten digits after a decimal point, whatever the locale; a number that is not
 * finite is written as a stream writes it ("inf", "-inf", "nan", "-nan").
 */
namespace DataExport {

/** K, uHat, the coefficients a to d, and the vertices in the order of their index. */
void writeHyperboloid(std::ostream& out, const Hyperboloid& hyperboloid);

/** Radius, pitch, curvature, torsion, and the vertices of the centre line. */
void writeHelix(std::ostream& out, const Helix& helix);

// The same, to where an export goes.
void saveHyperboloid(ByteTarget& target, const Hyperboloid& hyperboloid);
void saveHelix(ByteTarget& target, const Helix& helix);

} // namespace DataExport
