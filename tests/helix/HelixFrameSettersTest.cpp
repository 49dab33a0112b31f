#include "helix/HelixFrame.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace {

/** One setter of the frame, and how the model alone takes the same value. */
struct Setter {
    const char* name;
    std::function<void(HelixFrame&, bool redraw)> set;
    std::function<void(Helix&)> setModel;
};

const std::vector<Setter> setters = {
    {"ribbon range", [](HelixFrame& frame, bool redraw) { frame.set_ribbon_range(0.37, redraw); },
     [](Helix& helix) {
         helix.setRibRange(0.37F);
     }},
    {"tube radius", [](HelixFrame& frame, bool redraw) { frame.set_tube_radius(0.023, redraw); },
     [](Helix& helix) {
         helix.setTubeR(0.023F);
     }},
    {"tube precision", [](HelixFrame& frame, bool redraw) { frame.set_precision_tube(11, redraw); },
     [](Helix& helix) {
         helix.setPrecisionTube(11);
     }},
    {"line precision", [](HelixFrame& frame, bool redraw) { frame.set_precision_line(23, redraw); },
     [](Helix& helix) {
         helix.setPrecisionLine(23);
     }},
    {"turns", [](HelixFrame& frame, bool redraw) { frame.set_nturns(3.7, redraw); },
     [](Helix& helix) {
         helix.setNTurns(3.7F);
     }}};

/** A helix of the frames' point, sampled anew after a setter. */
Helix freshHelix(const Setter& setter) {
    Helix helix(1, 0.5F, 0.25F, 1, 0, 0);
    setter.setModel(helix);
    helix.init_tables(true, true, true);
    helix.generatePoints(true, true, true);
    return helix;
}

/** A kind of helix frame that draws in a way of its own. */
class DrawingOtherwise : public HelixFrame {
public:
    using HelixFrame::HelixFrame;
    void Draw() override { ++drawings; }
    int drawings = 0;
};

} // namespace

TEST(HelixFrameSettersTest, EachSetterAloneLeavesTheTablesOfAFreshHelix) {
    for (const Setter& setter : setters) {
        SCOPED_TRACE(setter.name);
        HelixFrame frame(1, 0.5F, 0.25F, 1, 0, 0, 17, true, nullptr);
        frame.initialize();
        setter.set(frame, true);
        const Helix& helix = frame.getHelix();
        const Helix expected = freshHelix(setter);
        EXPECT_EQ(helix.getLineVertices(), expected.getLineVertices());
        EXPECT_EQ(helix.getTubeVertices(), expected.getTubeVertices());
        EXPECT_EQ(helix.getRibbonVertices(), expected.getRibbonVertices());
        EXPECT_EQ(helix.getLineColors(), expected.getLineColors());
        EXPECT_EQ(helix.getTubeColors(), expected.getTubeColors());
        EXPECT_EQ(helix.getRibbonColors(), expected.getRibbonColors());
    }
}

TEST(HelixFrameSettersTest, EachSetterWithoutRedrawGivesTheTablesTheirSizes) {
    for (const Setter& setter : setters) {
        SCOPED_TRACE(setter.name);
        HelixFrame frame(1, 0.5F, 0.25F, 1, 0, 0, 17, true, nullptr);
        frame.initialize();
        setter.set(frame, false);
        const Helix& helix = frame.getHelix();
        const Helix expected = freshHelix(setter);
        EXPECT_EQ(helix.getLineVertices().size(), expected.getLineVertices().size());
        EXPECT_EQ(helix.getTubeVertices().size(), expected.getTubeVertices().size());
        EXPECT_EQ(helix.getRibbonVertices().size(), expected.getRibbonVertices().size());
    }
}

TEST(HelixFrameSettersTest, TablesThatASetterDoesNotResizeStayAsTheyAre) {
    HelixFrame frame(1, 0.5F, 0.25F, 1, 0, 0, 17, true, nullptr);
    const Helix& helix = frame.getHelix();
    const Helix before(helix);
    frame.set_ribbon_range(0.37, false);
    frame.set_tube_radius(0.023, false);
    EXPECT_EQ(helix.getTubeVertices(), before.getTubeVertices());
    EXPECT_EQ(helix.getTubeColors(), before.getTubeColors());
    frame.set_precision_tube(11, false);
    EXPECT_EQ(helix.getLineVertices(), before.getLineVertices());
    EXPECT_EQ(helix.getLineColors(), before.getLineColors());
    EXPECT_EQ(helix.getRibbonVertices(), before.getRibbonVertices());
    EXPECT_EQ(helix.getRibbonColors(), before.getRibbonColors());
}

TEST(HelixFrameSettersTest, SetterWithRedrawSamplesWhatOneWithoutLeftToItToo) {
    HelixFrame frame(1, 0.5F, 0.25F, 1, 0, 0, 17, true, nullptr);
    frame.initialize();
    frame.set_precision_line(23, false);
    frame.set_tube_radius(0.023, true);
    Helix expected(1, 0.5F, 0.25F, 1, 0, 0);
    expected.setPrecisionLine(23);
    expected.setTubeR(0.023F);
    expected.init_tables(true, true, true);
    expected.generatePoints(true, true, true);
    EXPECT_EQ(frame.getHelix().getLineVertices(), expected.getLineVertices());
    EXPECT_EQ(frame.getHelix().getTubeVertices(), expected.getTubeVertices());
    EXPECT_EQ(frame.getHelix().getRibbonVertices(), expected.getRibbonVertices());
}

TEST(HelixFrameSettersTest, EachSetterWithRedrawDrawsOnceAsItsKindOfFrameDoes) {
    for (const Setter& setter : setters) {
        SCOPED_TRACE(setter.name);
        DrawingOtherwise frame(1, 0.5F, 0.25F, 1, 0, 0, 17, true, nullptr);
        frame.initialize();
        const int before = frame.drawings;
        setter.set(frame, false);
        EXPECT_EQ(frame.drawings, before);
        setter.set(frame, true);
        EXPECT_EQ(frame.drawings, before + 1);
    }
}
