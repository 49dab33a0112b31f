#include "export/DataExport.h"
#include "helix/Helix.h"
#include "hyperboloid/Hyperboloid.h"
#include "tests/reference/PlainDataExport.h"

#include <clocale>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <random>
#include <sstream>

namespace {

/** A model whose vertices the test writes itself. */
class WrittenModel : public Hyperboloid {
public:
    explicit WrittenModel(int columns = 5, int rows = 5, int whichSpace = USPACE)
        : Hyperboloid(1, 1.5F, 1, 0.5F, 0.5F, 1, 0, 0, whichSpace) {
        set_parameters(1, 1.5, 1, 0.5, 0.5, 0.1, 0, 0, columns, rows, 0.3, 7, 7, 0.02, 0.03);
        init_tables();
        generateHyperboloidPoints(true, true);
    }

    /** Replaces the coordinates one after the other, each by `next` of what it was. */
    template <typename Next>
    void replaceCoordinates(Next next) {
        for (FloatTriple& vertex : vertices) {
            vertex = {next(vertex.x), next(vertex.y), next(vertex.z)};
        }
    }
};

std::string textOf(const Hyperboloid& model) {
    std::ostringstream text;
    DataExport::writeHyperboloid(text, model);
    return text.str();
}

std::string plainTextOf(const Hyperboloid& model) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    PlainDataExport::writeHyperboloid(text, model);
    return text.str();
}

template <typename Write>
std::string helixText(Write write, const Helix& helix) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    write(text, helix);
    return text.str();
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

/** Any float there is, by its bits. */
float anyFloat(std::mt19937& random) {
    const auto bits = static_cast<std::uint32_t>(random());
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

TEST(DataText, HyperboloidHasItsLinesInOrder) {
    const std::vector<std::string> lines = linesOf(textOf(WrittenModel()));
    ASSERT_EQ(lines.size(), 43U);
    const std::vector<std::string> head(lines.begin(), lines.begin() + 18);
    EXPECT_EQ(head,
              (std::vector<std::string>{
                  "Hyperboloid Parameters:", "", "K1 = 1.0000000000", "K2 = 1.5000000000",
                  "K3 = 1.0000000000", "K13 = 0.5000000000", "K23 = 0.5000000000",
                  "\u00DB1 = 0.1000000015", "\u00DB2 = 0.0000000000", "\u00DB3 = 0.0000000000",
                  "a = -0.2000000030", "b = 1.0000000000", "c = 0.0000000000", "d = -1.0000000000",
                  "", "", "Points in the Hyperboloid:", ""}));
}

TEST(DataText, AgreesWithPlainStreamsInEverySpaceAndGridShape) {
    for (int space = 0; space < 3; ++space) {
        for (const auto& [columns, rows] :
             std::vector<std::pair<int, int>>{{5, 5}, {64, 64}, {5, 100}, {100, 5}}) {
            const WrittenModel model(columns, rows, space);
            EXPECT_EQ(textOf(model), plainTextOf(model));
        }
    }
}

TEST(DataText, LargestGridHasALineForEveryVertex) {
    const WrittenModel model(500, 500);
    const std::string text = textOf(model);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 18 + 250000);
    EXPECT_EQ(text, plainTextOf(model));
}

TEST(DataText, AnyFloatIsWrittenAsAStreamWritesIt) {
    WrittenModel model(200, 200);
    std::mt19937 random(3);
    model.replaceCoordinates([&](float) { return anyFloat(random); });
    EXPECT_EQ(textOf(model), plainTextOf(model));
}

TEST(DataText, OrdinaryFloatsAreWrittenAsAStreamWritesThem) {
    WrittenModel model(300, 300);
    std::mt19937 random(4);
    std::uniform_real_distribution<float> exponent(-14, 9);
    model.replaceCoordinates([&](float) {
        return std::pow(10.0F, exponent(random)) * (random() % 2 == 0 ? 1.0F : -1.0F);
    });
    EXPECT_EQ(textOf(model), plainTextOf(model));
}

TEST(DataText, TiesAndEdgesAreWrittenAsAStreamWritesThem) {
    WrittenModel model(10, 10);
    std::vector<float> edges{0.0F,
                             -0.0F,
                             16777215.0F,
                             16777216.0F,
                             -16777216.0F,
                             8388608.5F,
                             std::numeric_limits<float>::infinity(),
                             -std::numeric_limits<float>::infinity(),
                             std::numeric_limits<float>::quiet_NaN(),
                             -std::numeric_limits<float>::quiet_NaN(),
                             std::numeric_limits<float>::max(),
                             std::numeric_limits<float>::min(),
                             std::numeric_limits<float>::denorm_min(),
                             -std::numeric_limits<float>::denorm_min(),
                             0.1F,
                             0.9999999999F};
    // Odd multiples of 2^-11 end in a five at the eleventh decimal: they lie on ties.
    for (int i = 1; i < 60; i += 2) {
        edges.push_back(std::ldexp(static_cast<float>(i), -11));
        edges.push_back(std::ldexp(static_cast<float>(-i), -35));
    }
    auto edge = edges.begin();
    model.replaceCoordinates(
        [&](float present) { return edge == edges.end() ? present : *edge++; });
    ASSERT_TRUE(edge == edges.end());
    EXPECT_EQ(textOf(model), plainTextOf(model));
    EXPECT_NE(textOf(model).find("-0.0000000000"), std::string::npos);
    EXPECT_NE(textOf(model).find("nan"), std::string::npos);
    EXPECT_NE(textOf(model).find("-inf"), std::string::npos);
}

TEST(DataText, HelixHasItsLinesInOrder) {
    Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    const std::vector<std::string> lines = linesOf(helixText(DataExport::writeHelix, helix));
    ASSERT_EQ(lines.size(), 10U + 250U);
    EXPECT_EQ(lines[0], "Helix Parameters:");
    EXPECT_EQ(lines[1], "");
    EXPECT_EQ(lines[2].substr(0, 9), "radius = ");
    EXPECT_EQ(lines[3].substr(0, 8), "pitch = ");
    EXPECT_EQ(lines[4].substr(0, 12), "curvature = ");
    EXPECT_EQ(lines[5], "torsion = 0.2500000000");
    EXPECT_EQ(lines[6] + lines[7], "");
    EXPECT_EQ(lines[8], "Points in the Helix center line:");
    EXPECT_EQ(lines[9], "");
    EXPECT_EQ(helixText(DataExport::writeHelix, helix),
              helixText(PlainDataExport::writeHelix, helix));
}

TEST(DataText, HelixWithoutTurnsHasNoPoints) {
    Helix helix;
    helix.setNTurns(0);
    helix.init_tables(true, true, true);
    EXPECT_EQ(linesOf(helixText(DataExport::writeHelix, helix)).size(), 10U);
}

TEST(DataText, HasADecimalPointInEveryLocale) {
    const WrittenModel model;
    const std::string expected = plainTextOf(model);
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8"}) {
        ASSERT_NE(std::setlocale(LC_ALL, name), nullptr) << name;
        const std::locale before = std::locale::global(std::locale(name));
        EXPECT_EQ(textOf(model), expected) << name;
        std::locale::global(before);
    }
    std::setlocale(LC_ALL, "C");
}
