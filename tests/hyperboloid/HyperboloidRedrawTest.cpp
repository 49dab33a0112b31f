#include "tests/support/LinkedFrames.h"
#include "tests/support/RedrawCounters.h"

#include <gtest/gtest.h>

namespace {

/** Linked frames whose drawings are counted, in the order U, X, M, helix; the helix is tied to U.
 */
class CountedFrames {
public:
    CountedFrames() {
        opened.showSideBySide();
        LinkedFrames::tie(opened.firstHelix(), opened.hyperboloid(Hyperboloid::USPACE));
        drawings();
    }

    /** How often each view was drawn since the last call. */
    std::vector<int> drawings() { return counters.take(); }

    const LinkedFrames opened;

private:
    RedrawCounters counters{opened.frames()};
};

using Counts = std::vector<int>;

} // namespace

TEST(HyperboloidRedraw, PickBesideTheSurfaceDrawsNothing) {
    CountedFrames counted;
    ViewDriver(counted.opened.hyperboloid(Hyperboloid::USPACE))
        .click(Qt::RightButton, QPoint(2, 2));
    EXPECT_EQ(counted.drawings(), (Counts{0, 0, 0, 0}));
}

TEST(HyperboloidRedraw, EachMoveOfTheMouseThatTurnsTheCameraDrawsItsViewOnce) {
    CountedFrames counted;
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

TEST(HyperboloidRedraw, DrawStyleDrawsItsOwnViewOnly) {
    CountedFrames counted;
    ViewDriver(counted.opened.hyperboloid(Hyperboloid::USPACE)).key(Qt::Key_Space);
    EXPECT_EQ(counted.drawings(), (Counts{1, 0, 0, 0}));
}
