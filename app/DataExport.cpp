#include "app/DataExport.h"

#include "helix/Helix.h"
#include "hyperboloid/Hyperboloid.h"

#include <array>
#include <charconv>
#include <ostream>
#include <string>
#include <string_view>

namespace {

constexpr int digitsAfterPoint = 10;
/** Room for the longest double in fixed notation: 309 digits, sign, point and decimals. */
constexpr std::size_t longestNumber = 330;

/** Collects the text of one file, which then goes to the stream in one piece. */
class TextBuilder {
public:
    void line(std::string_view content = {}) { text.append(content).push_back('\n'); }

    void parameter(std::string_view name, double value) {
        text.append(name).append(" = ");
        number(value);
        text.push_back('\n');
    }

    void point(double x, double y, double z) {
        number(x);
        text.append(separator);
        number(y);
        text.append(separator);
        number(z);
        text.push_back('\n');
    }

    void writeTo(std::ostream& out) const {
        out.write(text.data(), static_cast<std::streamsize>(text.size()));
    }

private:
    static constexpr std::string_view separator = "    ";

    void number(double value) {
        std::array<char, longestNumber> digits;
        const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                                std::chars_format::fixed, digitsAfterPoint);
        text.append(digits.data(), end);
    }

    std::string text;
};

} // namespace

void DataExport::writeHyperboloid(std::ostream& out, const Hyperboloid& hyperboloid) {
    TextBuilder text;
    text.line("Hyperboloid Parameters:");
    text.line();
    text.parameter("K1", hyperboloid.getK(0));
    text.parameter("K2", hyperboloid.getK(1));
    text.parameter("K3", hyperboloid.getK(2));
    text.parameter("K13", hyperboloid.getK(3));
    text.parameter("K23", hyperboloid.getK(4));
    text.parameter("\u00DB1", hyperboloid.getU(0));
    text.parameter("\u00DB2", hyperboloid.getU(1));
    text.parameter("\u00DB3", hyperboloid.getU(2));
    text.parameter("a", hyperboloid.getPNAS('a'));
    text.parameter("b", hyperboloid.getPNAS('b'));
    text.parameter("c", hyperboloid.getPNAS('c'));
    text.parameter("d", hyperboloid.getPNAS('d'));
    text.line();
    text.line();
    text.line("Points in the Hyperboloid:");
    text.line();
    const auto vertexCount = static_cast<int>(hyperboloid.getNumVertices());
    for (int k = 0; k < vertexCount; ++k) {
        text.point(hyperboloid.getVertex(k, 0), hyperboloid.getVertex(k, 1),
                   hyperboloid.getVertex(k, 2));
    }
    text.writeTo(out);
}

void DataExport::writeHelix(std::ostream& out, const Helix& helix) {
    TextBuilder text;
    text.line("Helix Parameters:");
    text.line();
    text.parameter("radius", helix.getRadius());
    text.parameter("pitch", helix.getPitch());
    text.parameter("curvature", helix.getCurvature());
    text.parameter("torsion", helix.getTorsion());
    text.line();
    text.line();
    text.line("Points in the Helix center line:");
    text.line();
    const auto vertexCount = static_cast<int>(helix.getNbLineVertices());
    for (int i = 0; i < vertexCount; ++i) {
        text.point(helix.getLineVertex(i, 0), helix.getLineVertex(i, 1), helix.getLineVertex(i, 2));
    }
    text.writeTo(out);
}
