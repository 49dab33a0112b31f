#include "tests/reference/PlainDataExport.h"

#include "helix/Helix.h"
#include "hyperboloid/Hyperboloid.h"

#include <iomanip>
#include <ostream>

void PlainDataExport::writeHyperboloid(std::ostream& out, const Hyperboloid& hyperboloid) {
    out << std::fixed << std::setprecision(10);
    out << "Hyperboloid Parameters:\n\n";
    const char* const kNames[] = {"K1", "K2", "K3", "K13", "K23"};
    for (int i = 0; i < 5; ++i) {
        out << kNames[i] << " = " << static_cast<double>(hyperboloid.getK(i)) << "\n";
    }
    for (int i = 0; i < 3; ++i) {
        out << "\xC3\x9B" << i + 1 << " = " << static_cast<double>(hyperboloid.getU(i)) << "\n";
    }
    for (const char name : {'a', 'b', 'c', 'd'}) {
        out << name << " = " << static_cast<double>(hyperboloid.getPNAS(name)) << "\n";
    }
    out << "\n\nPoints in the Hyperboloid:\n\n";
    for (int column = 0; column < static_cast<int>(hyperboloid.getNumCol()); ++column) {
        for (int row = 0; row < static_cast<int>(hyperboloid.getNumRow()); ++row) {
            const int k = column * static_cast<int>(hyperboloid.getNumRow()) + row;
            out << static_cast<double>(hyperboloid.getVertex(k, 0)) << "    "
                << static_cast<double>(hyperboloid.getVertex(k, 1)) << "    "
                << static_cast<double>(hyperboloid.getVertex(k, 2)) << "\n";
        }
    }
}

void PlainDataExport::writeHelix(std::ostream& out, const Helix& helix) {
    out << std::fixed << std::setprecision(10);
    out << "Helix Parameters:\n\n";
    out << "radius = " << static_cast<double>(helix.getRadius()) << "\n";
    out << "pitch = " << static_cast<double>(helix.getPitch()) << "\n";
    out << "curvature = " << static_cast<double>(helix.getCurvature()) << "\n";
    out << "torsion = " << static_cast<double>(helix.getTorsion()) << "\n";
    out << "\n\nPoints in the Helix center line:\n\n";
    for (int i = 0; i < static_cast<int>(helix.getNbLineVertices()); ++i) {
        out << static_cast<double>(helix.getLineVertex(i, 0)) << "    "
            << static_cast<double>(helix.getLineVertex(i, 1)) << "    "
            << static_cast<double>(helix.getLineVertex(i, 2)) << "\n";
    }
}
