#include "tests/program/OwnDisplay.h"
#include "tests/program/RunningViewer.h"

#include <QThread>
#include <gtest/gtest.h>

namespace {

constexpr unsigned long tenSeconds = 10000;
constexpr unsigned long twoSeconds = 2000;

/** How often the program wakes in a time given in milliseconds. */
qint64 wakeUpsIn(const RunningViewer& viewer, unsigned long time) {
    const qint64 before = viewer.waits();
    QThread::msleep(time);
    return viewer.waits() - before;
}

/** Moves the mouse over a view with the left button down, and lets go while it moves. */
void fling(const RunningViewer& viewer, const QRect& view) {
    const QPoint middle = view.center();
    QStringList moves = {"mousemove", QString::number(middle.x()), QString::number(middle.y()),
                         "mousedown", "1"};
    // At a hand's pace: the toolkit takes moves that come all at once for one.
    constexpr int steps = 5;
    for (int step = 0; step < steps; ++step) {
        moves << QStringList{"sleep", "0.03", "mousemove_relative", "12", "7"};
    }
    viewer.xdotool(moves << QStringList{"mouseup", "1"});
}

bool isMoving(const RunningViewer& viewer, const QRect& view) {
    constexpr unsigned long severalPictures = 300;
    // For a moment a busy machine still draws the moves of the mouse.
    constexpr int looks = 6;
    QImage last = viewer.screen(view);
    for (int look = 0; look < looks; ++look) {
        QThread::msleep(severalPictures);
        const QImage now = viewer.screen(view);
        if (now == last) {
            return false;
        }
        last = now;
    }
    return true;
}

/** Flings a view until it spins: moves that a busy machine hands on too late are no fling. */
bool throwView(const RunningViewer& viewer, const QRect& view) {
    return RunningViewer::waitUntil([&] {
        fling(viewer, view);
        return isMoving(viewer, view);
    });
}

} // namespace

TEST(Idle, NothingWakesItWhileNothingMoves) {
    const RunningViewer viewer;
    ASSERT_TRUE(viewer.waitUntilAllViewsAreDrawn());
    ASSERT_TRUE(viewer.waitUntilAtRest());
    EXPECT_EQ(wakeUpsIn(viewer, tenSeconds), 0);
    // It was not hanging.
    const QImage before = viewer.screen(viewer.uView());
    viewer.click(1, viewer.uView().topLeft() + QPoint(5, 5));
    viewer.key("space");
    EXPECT_TRUE(viewer.waitUntilChanged(viewer.uView(), before));
    ASSERT_TRUE(viewer.waitUntilAtRest());
    EXPECT_EQ(wakeUpsIn(viewer, twoSeconds), 0);
}

TEST(Idle, SeekFliesToThePointAndRests) {
    const RunningViewer viewer;
    ASSERT_TRUE(viewer.waitUntilAllViewsAreDrawn());
    viewer.click(1, viewer.xView().topLeft() + QPoint(5, 5));
    const QImage before = viewer.screen(viewer.xView());
    viewer.key("s");
    viewer.click(1, viewer.surfaceIn(viewer.xView()));
    EXPECT_TRUE(viewer.waitUntilChanged(viewer.xView(), before));
    EXPECT_TRUE(viewer.waitUntilAtRest());
}

TEST(Idle, SpinningViewRestsWhileTheWindowIsMinimisedAndGoesOnAfterwards) {
    const OwnDisplay display;
    const WindowManager windowManager(display);
    const RunningViewer viewer(display.name(), QSize(1000, 800));
    ASSERT_TRUE(viewer.waitUntilAllViewsAreDrawn());
    ASSERT_TRUE(viewer.waitUntilAtRest());
    const QString window = viewer.windowId();
    ASSERT_TRUE(throwView(viewer, viewer.xView()));
    const QImage thrown = viewer.screen(viewer.xView());
    EXPECT_TRUE(viewer.waitUntilUnlike(viewer.xView(), thrown));
    ASSERT_TRUE(viewer.xdotool({"windowminimize", window}));
    EXPECT_TRUE(viewer.waitUntilAtRest());
    EXPECT_EQ(wakeUpsIn(viewer, twoSeconds), 0);
    ASSERT_TRUE(viewer.xdotool({"windowmap", window}));
    ASSERT_TRUE(viewer.waitUntilAllViewsAreDrawn());
    const QImage back = viewer.screen(viewer.xView());
    EXPECT_TRUE(viewer.waitUntilUnlike(viewer.xView(), back));
}

TEST(Idle, SpinningViewRestsOnAnotherDesktop) {
    const OwnDisplay display;
    const WindowManager windowManager(display);
    const RunningViewer viewer(display.name(), QSize(1000, 800));
    ASSERT_TRUE(viewer.waitUntilAllViewsAreDrawn());
    ASSERT_TRUE(throwView(viewer, viewer.xView()));
    ASSERT_TRUE(viewer.xdotool({"set_desktop", "1"}));
    EXPECT_TRUE(viewer.waitUntilAtRest());
    EXPECT_EQ(wakeUpsIn(viewer, twoSeconds), 0);
    ASSERT_TRUE(viewer.xdotool({"set_desktop", "0"}));
    ASSERT_TRUE(viewer.waitUntilAllViewsAreDrawn());
    const QImage back = viewer.screen(viewer.xView());
    EXPECT_TRUE(viewer.waitUntilUnlike(viewer.xView(), back));
}
