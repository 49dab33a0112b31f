#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounter.h"
#include "tests/support/SliderWindow.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

/** An opened window whose drawings are counted, the views in the order U, X, M, helix. */
class CountedWindow {
public:
    CountedWindow() {
        opened.tie(opened.firstHelix(), opened.hyperboloid(Hyperboloid::USPACE));
        for (const SoQtGeneralViewerFrame* frame : opened.frames()) {
            counters.push_back(std::make_unique<RedrawCounter>(*frame));
        }
        drawings();
    }

    /** How often each view was drawn since the last call. */
    std::vector<int> drawings() {
        RedrawCounter::settle();
        std::vector<int> counts;
        for (const auto& counter : counters) {
            counts.push_back(counter->take());
        }
        return counts;
    }

    OpenedWindow opened;

private:
    std::vector<std::unique_ptr<RedrawCounter>> counters;
};

using Counts = std::vector<int>;

} // namespace

TEST(Redraw, KeyStepDrawsEveryViewOnce) {
    CountedWindow counted;
    ViewDriver(counted.opened.hyperboloid(Hyperboloid::USPACE)).key(Qt::Key_Down);
    EXPECT_EQ(counted.drawings(), (Counts{1, 1, 1, 1}));
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

TEST(Redraw, PickBesideTheSurfaceDrawsNothing) {
    CountedWindow counted;
    ViewDriver(counted.opened.hyperboloid(Hyperboloid::USPACE))
        .click(Qt::RightButton, QPoint(2, 2));
    EXPECT_EQ(counted.drawings(), (Counts{0, 0, 0, 0}));
}

TEST(Redraw, EachMoveOfTheMouseThatTurnsTheCameraDrawsItsViewOnce) {
    CountedWindow counted;
    const ViewDriver view(counted.opened.hyperboloid(Hyperboloid::USPACE));
    QTest::mousePress(&view.widget(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    view.moveDragging(Qt::LeftButton, QPoint(102, 101));
    counted.drawings();
    for (const int x : {120, 150, 151}) {
        view.moveDragging(Qt::LeftButton, QPoint(x, 110));
        EXPECT_EQ(counted.drawings(), (Counts{1, 0, 0, 0}));
    }
    QTest::mouseRelease(&view.widget(), Qt::LeftButton, Qt::NoModifier, QPoint(151, 110));
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

TEST(Redraw, DrawStyleDrawsItsOwnViewOnly) {
    CountedWindow counted;
    ViewDriver(counted.opened.hyperboloid(Hyperboloid::USPACE)).key(Qt::Key_Space);
    EXPECT_EQ(counted.drawings(), (Counts{1, 0, 0, 0}));
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
    EXPECT_EQ(counted.drawings(), (Counts{1, 1, 1, 1}));
}
