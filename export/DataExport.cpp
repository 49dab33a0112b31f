#include "export/DataExport.h"

#include "export/TargetStreams.h"
#include "helix/Helix.h"
#include "hyperboloid/Hyperboloid.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <string_view>

namespace {

constexpr int digitsAfterPoint = 10;
constexpr double unitsPerOne = 1e10;
/** From here on a float is a whole number. */
constexpr float leastWholeNumber = 1 << 24;
/** Room for the longest float in fixed notation: 39 digits, sign, point and decimals. */
constexpr std::size_t longestNumber = 64;

/**
 * A float below 2^24 in units of the last decimal, rounded as a stream rounds it: ties to even.
 *
 * The product is exact. 10^10 is 2^10 times 5^10, which has 24 bits, and so has the float: together
 * they fit into a double's 53 bits.
 */
std::uint64_t decimalUnits(float value) {
    return static_cast<std::uint64_t>(
        std::llrint(std::fabs(static_cast<double>(value)) * unitsPerOne));
}

/** Collects the text of one file and passes it on to the stream in large pieces. */
class TextWriter {
public:
    explicit TextWriter(std::ostream& stream)
        : out(stream) {}
    ~TextWriter() { passOn(); }
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void line(std::string_view content = {}) {
        words(content);
        words("\n");
    }

    void parameter(std::string_view name, float value) {
        words(name);
        words(" = ");
        number(value);
        words("\n");
    }

    void point(float x, float y, float z) {
        number(x);
        words(separator);
        number(y);
        words(separator);
        number(z);
        words("\n");
    }

private:
    static constexpr std::string_view separator = "    ";
    static constexpr std::size_t pieceSize = 1 << 16;

    void passOn() {
        out.write(piece.data(), end - piece.data());
        end = piece.data();
    }

    /** Makes room for so many characters, fewer than a piece holds. */
    void makeRoom(std::size_t count) {
        if (static_cast<std::size_t>(limit - end) < count) {
            passOn();
        }
    }

    void words(std::string_view content) {
        makeRoom(content.size());
        end = std::copy(content.begin(), content.end(), end);
    }

    void number(float value) {
        makeRoom(longestNumber);
        if (std::fabs(value) < leastWholeNumber) {
            decimalNumber(value);
        } else {
            // Whole numbers, infinities and NaN, as a stream writes them.
            end = std::to_chars(end, limit, static_cast<double>(value), std::chars_format::fixed,
                                digitsAfterPoint)
                      .ptr;
        }
    }

    void decimalNumber(float value) {
        constexpr auto perOne = static_cast<std::uint64_t>(unitsPerOne);
        const std::uint64_t units = decimalUnits(value);
        if (std::signbit(value)) {
            *end++ = '-';
        }
        end = std::to_chars(end, limit, units / perOne).ptr;
        // A leading one keeps the decimals' zeros; the point takes its place.
        char* const point = end;
        end = std::to_chars(end, limit, perOne + units % perOne).ptr;
        *point = '.';
    }

    std::ostream& out;
    std::array<char, pieceSize> piece{};
    char* const limit = piece.data() + piece.size();
    char* end = piece.data();
};

} // namespace

void DataExport::writeHyperboloid(std::ostream& out, const Hyperboloid& hyperboloid) {
    TextWriter text(out);
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
}

void DataExport::writeHelix(std::ostream& out, const Helix& helix) {
    TextWriter text(out);
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
}

void DataExport::saveHyperboloid(ByteTarget& target, const Hyperboloid& hyperboloid) {
    TargetBuffer buffer(target);
    std::ostream stream(&buffer);
    writeHyperboloid(stream, hyperboloid);
}

void DataExport::saveHelix(ByteTarget& target, const Helix& helix) {
    TargetBuffer buffer(target);
    std::ostream stream(&buffer);
    writeHelix(stream, helix);
}
