#pragma once

#include <iosfwd>

class Helix;
class Hyperboloid;

/** The text export the plain way: one stream insertion per number. Shares no code with ours. */
namespace PlainDataExport {

void writeHyperboloid(std::ostream& out, const Hyperboloid& hyperboloid);
void writeHelix(std::ostream& out, const Helix& helix);

} // namespace PlainDataExport
