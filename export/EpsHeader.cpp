#include "export/EpsHeader.h"

#include <array>

namespace {

constexpr int pointsPerInch = 72;

/** A line of the header by how it begins, and the line that takes its place. */
struct Line {
    std::string_view beginning;
    std::string replacement;
};

std::string boundingBox(const SbVec2s& pixels, int dotsPerInch) {
    const auto points = [&](int count) {
        // Rounded up.
        return std::to_string((count * pointsPerInch + dotsPerInch - 1) / dotsPerInch);
    };
    return "%%BoundingBox: 0 0 " + points(pixels[0]) + " " + points(pixels[1]);
}

} // namespace

std::optional<EpsHeader::Corrected> EpsHeader::correct(std::string_view picture,
                                                       const SbVec2s& pixels, int dotsPerInch) {
    // In the order of the file.
    const std::array<Line, 3> lines{{
        {"\n%%BoundingBox: ", boundingBox(pixels, dotsPerInch)},
        {"\n/image_dpi ", "/image_dpi " + std::to_string(dotsPerInch) + ".0 def"},
        {"\n/image_ypos page_ht pos_ht image_scale mul sub def", "/image_ypos 0 def"},
    }};
    std::string header;
    std::string_view rest = picture;
    for (const Line& line : lines) {
        const std::size_t start = rest.find(line.beginning);
        const std::size_t end = rest.find('\n', start + 1);
        if (start == std::string_view::npos || end == std::string_view::npos) {
            return std::nullopt;
        }
        header.append(rest.substr(0, start + 1)).append(line.replacement);
        rest.remove_prefix(end);
    }
    return Corrected{header, rest};
}
