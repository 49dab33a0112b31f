#include "helix/Helix.h"
#include "scene/SceneNodes.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoSeparator.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace {

const FloatTriple zero{0, 0, 0};

/** The text that drawing or sampling a helix throws, empty when it throws none. */
template <typename Operation>
std::string complaintOf(Operation operation) {
    try {
        operation();
    } catch (const std::logic_error& error) {
        return error.what();
    }
    return {};
}

/** Sampling and all three drawings name the call that is missing. */
void expectComplaints(Helix& helix) {
    const auto expectComplaint = [](const std::string& text) {
        EXPECT_NE(text.find("init_tables()"), std::string::npos) << text;
    };
    for (const bool chosen : {false, true}) {
        expectComplaint(complaintOf([&] { helix.generatePoints(chosen, chosen, chosen); }));
    }
    expectComplaint(complaintOf([&] { const NodePointer<SoSeparator> line(helix.DrawLine()); }));
    expectComplaint(complaintOf([&] { const NodePointer<SoSeparator> tube(helix.DrawTube()); }));
    expectComplaint(
        complaintOf([&] { const NodePointer<SoSeparator> ribbon(helix.DrawRibbon()); }));
}

void expectSameTables(const Helix& one, const Helix& other) {
    EXPECT_EQ(one.getLineVertices(), other.getLineVertices());
    EXPECT_EQ(one.getLineColors(), other.getLineColors());
    EXPECT_EQ(one.getTubeVertices(), other.getTubeVertices());
    EXPECT_EQ(one.getTubeColors(), other.getTubeColors());
    EXPECT_EQ(one.getRibbonVertices(), other.getRibbonVertices());
    EXPECT_EQ(one.getRibbonColors(), other.getRibbonColors());
}

/** Every coordinate that a part's node holds is 0. */
void expectOnlyZeros(SoSeparator* node, int count) {
    const NodePointer<SoSeparator> part(node);
    const SoCoordinate3* coordinates = nullptr;
    for (int i = 0; i < part->getNumChildren() && coordinates == nullptr; ++i) {
        coordinates = dynamic_cast<const SoCoordinate3*>(part->getChild(i));
    }
    ASSERT_NE(coordinates, nullptr);
    ASSERT_EQ(coordinates->point.getNum(), count);
    for (int i = 0; i < count; ++i) {
        ASSERT_EQ(coordinates->point[i], SbVec3f(0, 0, 0));
    }
}

} // namespace

TEST(HelixTables, CountChangedWithoutNewTablesIsNamed) {
    Helix turned;
    turned.setNTurns(10);
    expectComplaints(turned);
    Helix refined;
    refined.setPrecisionLine(37);
    expectComplaints(refined);
    Helix rounded;
    rounded.setPrecisionTube(40);
    expectComplaints(rounded);
}

TEST(HelixTables, CountChangedWithoutNewTablesLeavesTheOldOnesAlone) {
    Helix helix;
    const Helix untouched;
    helix.setNTurns(10);
    helix.setTubeR(0.3F);
    EXPECT_THROW(helix.generatePoints(true, true, true), std::logic_error);
    expectSameTables(helix, untouched);
}

TEST(HelixTables, NewTablesForSomeOfTheCountsOnlyAreNotEnough) {
    for (int missing = 0; missing < 3; ++missing) {
        SCOPED_TRACE(missing);
        Helix helix;
        helix.setPrecisionLine(37);
        helix.init_tables(missing != 0, missing != 1, missing != 2);
        expectComplaints(helix);
        helix.init_tables(missing == 0, missing == 1, missing == 2);
        EXPECT_NO_THROW(helix.generatePoints(true, true, true));
    }
}

TEST(HelixTables, CountThatComesBackFitsAgain) {
    Helix helix;
    helix.setPrecisionTube(40);
    helix.setPrecisionTube(16);
    EXPECT_NO_THROW(helix.generatePoints(false, true, false));
    expectSameTables(helix, Helix());
}

TEST(HelixTables, AreZeroUntilSampled) {
    Helix helix;
    helix.setPrecisionTube(7);
    helix.init_tables(false, true, false);
    EXPECT_EQ(helix.getTubeVertices(), Helix::Table(250 * 7, zero));
    EXPECT_EQ(helix.getTubeColors(), Helix::Table(250 * 7, zero));
    EXPECT_NE(helix.getLineVertices()[0], zero);
}

TEST(HelixTables, AreDrawnAsTheyAreUntilSampled) {
    Helix helix;
    helix.setPrecisionTube(7);
    helix.setPrecisionLine(11);
    helix.init_tables(true, true, true);
    expectOnlyZeros(helix.DrawLine(), 55);
    expectOnlyZeros(helix.DrawTube(), 55 * 7);
    expectOnlyZeros(helix.DrawRibbon(), 55 * 2);
}

TEST(HelixTables, ThatWaitAreFilledWhateverIsChosen) {
    Helix expected;
    expected.setPrecisionLine(23);
    expected.setPrecisionTube(9);
    expected.init_tables(true, true, true);
    Helix sampled(expected);
    expected.generatePoints(true, true, true);
    for (int choice = 0; choice < 8; ++choice) {
        SCOPED_TRACE(choice);
        Helix helix(sampled);
        helix.generatePoints((choice & 1) != 0, (choice & 2) != 0, (choice & 4) != 0);
        expectSameTables(helix, expected);
    }
}

TEST(HelixTables, ThatWereFilledAreLeftAloneUnlessChosen) {
    Helix helix;
    helix.init_tables(false, false, true);
    helix.generatePoints(false, false, false);
    const Helix before(helix);
    helix.refresh_param(0.7F, -0.3F, 0.2F, 1, 0, 0);
    helix.generatePoints(false, false, false);
    expectSameTables(helix, before);
}

TEST(HelixTables, NewRingsGoAlongTheCentreLineThatWasSampledBefore) {
    Helix helix;
    const Helix::Table line = helix.getLineVertices();
    helix.refresh_param(0.7F, -0.3F, 0.2F, 1, 0, 0);
    helix.setPrecisionTube(8);
    helix.init_tables(false, true, false);
    helix.generatePoints(false, true, false);
    EXPECT_EQ(helix.getLineVertices(), line);
    ASSERT_EQ(helix.getTubeVertices().size(), 8 * line.size());
    for (std::size_t i = 0; i < line.size(); ++i) {
        const FloatTriple vertex = helix.getTubeVertices()[8 * i + 3];
        const Triple offset = widened(vertex) - widened(line[i]);
        EXPECT_NEAR(dot(offset, offset), 0.01 * 0.01, 1e-6);
    }
}
