#include "app/DataExport.h"

#include "helix/Helix.h"
#include "hyperboloid/Hyperboloid.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace {

constexpr int digitsAfterPoint = 10;
constexpr std::uint64_t unitsPerOne = 10'000'000'000;
/** Bits of a float's mantissa; from 2 to this power on a float is a whole number. */
constexpr int mantissaBits = 24;
/** Room for the longest float in fixed notation: 39 digits, sign, point and decimals. */
constexpr std::size_t longestNumber = 64;

/**
 * A float below 2^24 in units of the last decimal, exactly rounded, ties to even.
 *
 * |value| = mantissa / 2^shift, so the units are mantissa * 10^10 / 2^shift, and the product has
 * less than 24 + 34 bits.
 */
std::uint64_t decimalUnits(float value) {
    int exponent = 0;
    const float fraction = std::frexp(std::fabs(value), &exponent);
    const auto mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, mantissaBits));
    // Beyond this shift nothing is left of the product anyway.
    constexpr int largestShift = 63;
    const int shift = std::min(mantissaBits - exponent, largestShift);
    const std::uint64_t product = mantissa * unitsPerOne;
    const std::uint64_t units = product >> shift;
    const std::uint64_t rest = product - (units << shift);
    const std::uint64_t half = (std::uint64_t{1} << shift) / 2;
    const bool roundsUp = rest > half || (rest == half && rest > 0 && units % 2 == 1);
    return roundsUp ? units + 1 : units;
}

/** Collects the text of one file, which then goes to the stream in one piece. */
class TextBuilder {
public:
    void line(std::string_view content = {}) { text.append(content).push_back('\n'); }

    void parameter(std::string_view name, float value) {
        text.append(name).append(" = ");
        number(value);
        text.push_back('\n');
    }

    void point(float x, float y, float z) {
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

    void number(float value) {
        std::array<char, longestNumber> digits{};
        char* end = digits.data();
        char* const limit = end + digits.size();
        if (std::fabs(value) < std::ldexp(1.0F, mantissaBits)) {
            const std::uint64_t units = decimalUnits(value);
            if (std::signbit(value)) {
                *end++ = '-';
            }
            end = std::to_chars(end, limit, units / unitsPerOne).ptr;
            // A leading one keeps the decimals' zeros; the point takes its place.
            char* const point = end;
            end = std::to_chars(end, limit, unitsPerOne + units % unitsPerOne).ptr;
            *point = '.';
        } else {
            // Whole numbers, infinities and NaN, as a stream writes them.
            end = std::to_chars(end, limit, static_cast<double>(value), std::chars_format::fixed,
                                digitsAfterPoint)
                      .ptr;
        }
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
