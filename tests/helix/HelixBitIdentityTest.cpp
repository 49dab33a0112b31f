#include "helix/Helix.h"
#include "tests/reference/PlainHelix.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

/** Whether two numbers agree to the last bit; NaNs count as one value. */
bool sameBits(float one, float other) {
    return (std::isnan(one) && std::isnan(other)) || std::memcmp(&one, &other, sizeof(float)) == 0;
}

bool sameBits(const Helix::Table& one, const PlainHelix::Table& other) {
    if (one.size() != other.size()) {
        return false;
    }
    for (std::size_t i = 0; i < one.size(); ++i) {
        const auto [x, y, z] = one[i];
        if (!sameBits(x, other[i][0]) || !sameBits(y, other[i][1]) || !sameBits(z, other[i][2])) {
            return false;
        }
    }
    return true;
}

void expectSameParameters(const Helix& helix, const PlainHelix& plain) {
    EXPECT_TRUE(sameBits(helix.getPhi(), plain.phi));
    EXPECT_TRUE(sameBits(helix.getOmega(), plain.omega));
    EXPECT_TRUE(sameBits(helix.getRadius(), plain.radius));
    EXPECT_TRUE(sameBits(helix.getPitch(), plain.pitch));
    EXPECT_TRUE(sameBits(helix.getCurvature(), plain.curvature));
    EXPECT_TRUE(sameBits(helix.getTorsion(), plain.torsion));
}

void expectSameTables(const Helix& helix, const PlainHelix& plain) {
    EXPECT_TRUE(sameBits(helix.getLineVertices(), plain.lineVertices));
    EXPECT_TRUE(sameBits(helix.getLineColors(), plain.lineColors));
    EXPECT_TRUE(sameBits(helix.getTubeVertices(), plain.tubeVertices));
    EXPECT_TRUE(sameBits(helix.getTubeColors(), plain.tubeColors));
    EXPECT_TRUE(sameBits(helix.getRibbonVertices(), plain.ribbonVertices));
    EXPECT_TRUE(sameBits(helix.getRibbonColors(), plain.ribbonColors));
}

/** The same helix both ways, with one sampling. */
struct Pair {
    Pair(float u1, float u2, float u3)
        : ours(u1, u2, u3, 1, 0, 0)
        , plain(u1, u2, u3, 1, 0, 0) {}

    void sample(int line, float turns, int tube) {
        ours.setPrecisionLine(line);
        ours.setNTurns(turns);
        ours.setPrecisionTube(tube);
        ours.init_tables(true, true, true);
        plain.precisionLine = static_cast<unsigned int>(line);
        plain.nTurns = turns;
        plain.nbLineVertices = static_cast<unsigned int>(static_cast<float>(line) * turns);
        plain.precisionTube = static_cast<unsigned int>(tube);
        plain.init_tables(true, true, true);
    }

    void generate(bool line, bool tube, bool ribbon) {
        ours.generatePoints(line, tube, ribbon);
        plain.generatePoints(line, tube, ribbon);
    }

    Helix ours;
    PlainHelix plain;
};

} // namespace

TEST(HelixBitIdentity, HoldsForRandomPoints) {
    std::mt19937 random(11);
    std::uniform_real_distribution<float> value(-15, 15);
    for (int i = 0; i < 300; ++i) {
        const Pair pair(value(random), value(random), value(random));
        expectSameTables(pair.ours, pair.plain);
        expectSameParameters(pair.ours, pair.plain);
    }
}

TEST(HelixBitIdentity, HoldsForSpecialPoints) {
    for (const float u1 : {-1.0F, 0.0F, 1.0F, 1e-20F, 1e-30F, 1e20F}) {
        for (const float u2 : {-1.0F, 0.0F, 2.0F, 1e-20F}) {
            for (const float u3 : {-1.0F, 0.0F, 0.5F, 1e20F}) {
                SCOPED_TRACE(testing::Message() << u1 << " " << u2 << " " << u3);
                Pair pair(u1, u2, u3);
                expectSameTables(pair.ours, pair.plain);
                expectSameParameters(pair.ours, pair.plain);
                EXPECT_EQ(pair.ours.refresh_param(u1, u2, u3, 1, 0, 0),
                          pair.plain.refresh_param(u1, u2, u3, 1, 0, 0));
            }
        }
    }
}

TEST(HelixBitIdentity, HoldsForTablesOfEveryShape) {
    Pair pair(1, 0.5F, 0.25F);
    for (const auto& [line, turns, tube] :
         std::vector<std::tuple<int, float, int>>{{5, 1.0F, 5},
                                                  {200, 10.0F, 100},
                                                  {5, 10.0F, 100},
                                                  {200, 1.0F, 5},
                                                  {37, 2.6F, 17},
                                                  {50, 0.3F, 2},
                                                  {2, 1.0F, 2}}) {
        pair.sample(line, turns, tube);
        pair.generate(true, true, true);
        expectSameTables(pair.ours, pair.plain);
    }
}

TEST(HelixBitIdentity, HoldsForEveryChoiceOfTables) {
    for (int choice = 0; choice < 8; ++choice) {
        const bool line = (choice & 1) != 0;
        const bool tube = (choice & 2) != 0;
        const bool ribbon = (choice & 4) != 0;
        Pair pair(1, 0.5F, 0.25F);
        pair.ours.setTubeR(0.2F);
        pair.plain.tubeR = 0.2F;
        pair.ours.setRibRange(0.7F);
        pair.plain.ribRange = 0.7F;
        pair.ours.refresh_param(2, -1, 0.3F, 0, 0, 0);
        pair.plain.refresh_param(2, -1, 0.3F, 0, 0, 0);
        pair.generate(line, tube, ribbon);
        expectSameTables(pair.ours, pair.plain);
    }
}
