#include "export/EpsHeader.h"

#include <gtest/gtest.h>

namespace {

const std::string known = "%!PS-Adobe-2.0 EPSF-1.2\n"
                          "%%BoundingBox: 0 -3312 6264 792\n"
                          "%%EndComments\n"
                          "/image_wd 8700 def\n"
                          "/image_dpi 100.037 def\n"
                          "/image_ypos page_ht pos_ht image_scale mul sub def\n"
                          "image\n"
                          "s8W-!~>\n";

std::string corrected(const std::string& picture, const SbVec2s& pixels = {1500, 900}) {
    const auto parts = EpsHeader::correct(picture, pixels, 300);
    return parts ? parts->header + std::string(parts->rest) : "unknown";
}

std::string without(const std::string& line) {
    std::string picture = known;
    return picture.erase(picture.find(line), line.size());
}

} // namespace

TEST(EpsHeader, GetsTheSizeTheResolutionAndThePlaceAndKeepsAllElse) {
    EXPECT_EQ(corrected(known), "%!PS-Adobe-2.0 EPSF-1.2\n"
                                "%%BoundingBox: 0 0 360 216\n"
                                "%%EndComments\n"
                                "/image_wd 8700 def\n"
                                "/image_dpi 300.0 def\n"
                                "/image_ypos 0 def\n"
                                "image\n"
                                "s8W-!~>\n");
}

TEST(EpsHeader, BoxHoldsAllOfAPictureThatIsNotOfWholePoints) {
    const auto boxOf = [](short width, short height) {
        const std::string text = corrected(known, SbVec2s(width, height));
        const std::size_t start = text.find("0 0");
        return text.substr(start, text.find('\n', start) - start);
    };
    EXPECT_EQ(boxOf(750, 1), "0 0 180 1");
    EXPECT_EQ(boxOf(751, 25), "0 0 181 6");
    EXPECT_EQ(boxOf(32767, 26), "0 0 7865 7");
}

TEST(EpsHeader, HeaderThatIsNotKnownIsRefused) {
    for (const char* line : {"%%BoundingBox: 0 -3312 6264 792\n", "/image_dpi 100.037 def\n",
                             "/image_ypos page_ht pos_ht image_scale mul sub def\n"}) {
        EXPECT_EQ(corrected(without(line)), "unknown") << line;
    }
    EXPECT_EQ(corrected(""), "unknown");
}
