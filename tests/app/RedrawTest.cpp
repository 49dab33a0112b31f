#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounters.h"
#include "tests/support/SliderWindow.h"

#include <gtest/gtest.h>

namespace {

/** An opened window whose drawings are counted, the views in the order U, X, M, helix. */
class CountedWindow {
public:
    CountedWindow() {
        opened.tie(opened.firstHelix(), opened.hyperboloid(Hyperboloid::USPACE));
        drawings();
    }

    /** How often each view was drawn since the last call. */
    std::vector<int> drawings() { return counters.take(); }

    bool waitUntilAllAreDrawn() const { return counters.waitUntilAllAreDrawn(); }

    const OpenedWindow opened{OpenedWindow::roomySize};

private:
    RedrawCounters counters{opened.frames()};
};

using Counts = std::vector<int>;

} // namespace

TEST(Redraw, KeyStepDrawsEveryViewOnce) {
    CountedWindow counted;
    ViewDriver(counted.opened.hyperboloid(Hyperboloid::USPACE)).key(Qt::Key_Down);
    EXPECT_EQ(counted.drawings(), (Counts{1, 1, 1, 1}));
}

TEST(Redraw, StepsThatWaitedAreAllMadeAndDrawnTogether) {
    CountedWindow counted;
    HyperboloidFrame& u = counted.opened.hyperboloid(Hyperboloid::USPACE);
    QWidget& view = ViewDriver(u).widget();
    constexpr int steps = 40;
    for (int i = 0; i < steps; ++i) {
        QCoreApplication::postEvent(
            &view, new QKeyEvent(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier, "", true));
    }
    const std::vector<int> drawings = counted.drawings();
    EXPECT_EQ(counted.opened.firstHelix().getIndex(), steps * static_cast<int>(u.getNumRow()));
    for (const int drawn : drawings) {
        EXPECT_GE(drawn, 1);
        EXPECT_LE(drawn, 2);
    }
}

TEST(Redraw, PickDrawsEveryViewOnce) {
    CountedWindow counted;
    HyperboloidFrame& u = counted.opened.hyperboloid(Hyperboloid::USPACE);
    const ViewDriver view(u);
    // A vertex in the middle of what is seen of the surface.
    const int index = static_cast<int>(u.getNumRow()) * 10 + 20;
    view.click(Qt::RightButton,
               view.positionOf(
                   SbVec3f(u.getVertex(index, 0), u.getVertex(index, 1), u.getVertex(index, 2))));
    EXPECT_NE(counted.opened.firstHelix().getIndex(), 0);
    EXPECT_EQ(counted.drawings(), (Counts{1, 1, 1, 1}));
}

TEST(Redraw, HelixSliderDrawsTheHelixOnceForEachStep) {
    CountedWindow counted;
    counted.opened.activate(counted.opened.firstHelix());
    const SliderWindow window(counted.opened, "helixParamsAct");
    counted.drawings();
    for (int row = 0; row < 5; ++row) {
        window.slider(row).setValue(window.slider(row).value() + 1);
        EXPECT_EQ(counted.drawings(), (Counts{0, 0, 0, 1})) << "row " << row;
    }
}

TEST(Redraw, HelixParameterDrawsTheHelixOnly) {
    CountedWindow counted;
    counted.opened.activate(counted.opened.firstHelix());
    counted.drawings();
    counted.opened.call("helix_change_radius", Q_ARG(int, 150));
    EXPECT_EQ(counted.drawings(), (Counts{0, 0, 0, 1}));
}

TEST(Redraw, AppearanceStepDrawsTheSurfacesOnly) {
    CountedWindow counted;
    for (const char* slot :
         {"refreshHyperboloidTransp", "refreshHyperboloidLight", "refreshHyperboloidSat"}) {
        counted.opened.call(slot, Q_ARG(int, 40));
        EXPECT_EQ(counted.drawings(), (Counts{1, 1, 1, 0})) << slot;
    }
}

TEST(Redraw, ParameterChangeDrawsEveryViewOnce) {
    CountedWindow counted;
    const int before = 64 * 64;
    counted.opened.window().refresh_hyperboloids(1, 1.6, 1, 0.4, 0.5, 1, 0, 0, 40, 50, 0.3, 7, 7,
                                                 0.02, 0.03);
    counted.opened.window().refresh_helixs(before);
    EXPECT_EQ(counted.drawings(), (Counts{1, 1, 1, 1}));
}

TEST(Redraw, StatusAndMenusDrawNothing) {
    CountedWindow counted;
    counted.opened.call("updateWindowMenu");
    counted.opened.call("updateMenus");
    EXPECT_EQ(counted.drawings(), (Counts{0, 0, 0, 0}));
}

TEST(Redraw, ActivatingADocumentDrawsNothing) {
    CountedWindow counted;
    counted.opened.activate(counted.opened.hyperboloid(Hyperboloid::MSPACE));
    EXPECT_EQ(counted.drawings(), (Counts{0, 0, 0, 0}));
}

TEST(Redraw, ResizingDrawsEveryViewOnce) {
    CountedWindow counted;
    counted.opened.window().resize(1100, 900);
    EXPECT_TRUE(counted.waitUntilAllAreDrawn());
    EXPECT_EQ(counted.drawings(), (Counts{1, 1, 1, 1}));
}
