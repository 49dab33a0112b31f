#include "tests/program/OwnDisplay.h"
#include "tests/program/RunningViewer.h"

#include <csignal>
#include <gtest/gtest.h>

namespace {

/** The viewer with the first helix tied to the U view, which has the keyboard. */
class TiedViewer : public RunningViewer {
public:
    TiedViewer() {
        EXPECT_TRUE(waitUntilAllViewsAreDrawn());
        // The helix is active at start; clicking the U view right after it ties the two, and the
        // status bar then tells of both.
        const QImage before = screen(statusBar());
        click(1, uView().topLeft() + QPoint(5, 5));
        EXPECT_TRUE(waitUntilChanged(statusBar(), before));
    }
};

/** Expects that doing something changes the helix, all three surfaces' views and the status bar. */
template <typename Action>
void expectMovesEverywhere(const RunningViewer& viewer, Action action) {
    const std::vector<QRect> places{viewer.helixView(), viewer.uView(), viewer.xView(),
                                    viewer.mView(), viewer.statusBar()};
    std::vector<QImage> before;
    before.reserve(places.size());
    const QImage seen = viewer.screen();
    for (const QRect& place : places) {
        before.push_back(seen.copy(place));
    }
    action();
    EXPECT_TRUE(viewer.waitUntilChanged(places, before));
}

/** Expects that the program ends, and ends well. */
void expectGoodEnd(RunningViewer& viewer) {
    ASSERT_TRUE(viewer.waitForEnd());
    EXPECT_FALSE(viewer.crashed());
    EXPECT_EQ(viewer.exitCode(), 0);
}

/** Expects that the program ends well and has stored the size of its window. */
void expectGoodEndAndStored(RunningViewer& viewer, const char* size) {
    expectGoodEnd(viewer);
    EXPECT_TRUE(viewer.storedSettings().contains(size));
}

} // namespace

TEST(Program, ShowsFourDrawnViewsWithoutAnyInteraction) {
    RunningViewer viewer;
    EXPECT_TRUE(viewer.waitUntilAllViewsAreDrawn());
}

TEST(Program, ViewIsDrawnInItsPlaceUnderTheUsersScaling) {
    qputenv("QT_SCALE_FACTOR", "2");
    RunningViewer viewer(QSize(600, 480));
    qunsetenv("QT_SCALE_FACTOR");
    ASSERT_TRUE(viewer.waitForWindow());
    // The helix is in front; only this view has room.
    EXPECT_TRUE(viewer.waitUntilColoured(QRect(80, 90, 700, 550)));
    viewer.terminate();
    EXPECT_TRUE(viewer.waitForEnd());
}

TEST(Program, RightButtonOnTheSurfaceMovesTheSphereEverywhere) {
    const TiedViewer viewer;
    expectMovesEverywhere(viewer, [&] { viewer.click(3, viewer.surfaceIn(viewer.uView())); });
}

TEST(Program, LeftButtonPicksInPickingMode) {
    const TiedViewer viewer;
    // Escape leaves the examiner's viewing mode.
    viewer.key("Escape");
    expectMovesEverywhere(viewer, [&] { viewer.click(1, viewer.surfaceIn(viewer.uView())); });
}

TEST(Program, DirectionKeysStepTheSphereEverywhere) {
    const TiedViewer viewer;
    for (const char* key :
         {"Down", "s", "KP_2", "Left", "a", "KP_4", "Up", "w", "KP_8", "Right", "d", "KP_6"}) {
        SCOPED_TRACE(key);
        expectMovesEverywhere(viewer, [&] { viewer.key(key); });
    }
}

TEST(Program, SpaceCyclesThroughTheThreeDrawStyles) {
    const TiedViewer viewer;
    const QImage phong = viewer.screen(viewer.uView());
    viewer.key("space");
    EXPECT_TRUE(viewer.waitUntilChanged(viewer.uView(), phong));
    const QImage solid = viewer.screen(viewer.uView());
    viewer.key("space");
    EXPECT_TRUE(viewer.waitUntilChanged(viewer.uView(), solid));
    viewer.key("space");
    EXPECT_TRUE(viewer.waitUntilLike(viewer.uView(), phong));
}

TEST(Program, PAndOChangeTheCamera) {
    const TiedViewer viewer;
    const QImage orthographic = viewer.screen(viewer.uView());
    viewer.key("p");
    EXPECT_TRUE(viewer.waitUntilChanged(viewer.uView(), orthographic));
    const QImage perspective = viewer.screen(viewer.uView());
    viewer.key("o");
    EXPECT_TRUE(viewer.waitUntilChanged(viewer.uView(), perspective));
}

TEST(Program, DragTurnsTheView) {
    const TiedViewer viewer;
    const QImage before = viewer.screen(viewer.uView());
    const QPoint middle = viewer.uView().center();
    viewer.xdotool({"mousemove", QString::number(middle.x()), QString::number(middle.y())});
    viewer.xdotool({"mousedown", "1"});
    viewer.xdotool({"mousemove_relative", "60", "40"});
    viewer.xdotool({"mousemove_relative", "10", "5"});
    viewer.xdotool({"mouseup", "1"});
    EXPECT_TRUE(viewer.waitUntilChanged(viewer.uView(), before));
}

TEST(Program, QuitShortcutEndsItCleanlyAndStoresTheGeometry) {
    TiedViewer viewer;
    viewer.key("ctrl+n");
    viewer.key("ctrl+q");
    expectGoodEnd(viewer);
    EXPECT_EQ(viewer.errors(), "");
    EXPECT_TRUE(viewer.storedSettings().contains("pos=@Point(0 0)"));
    EXPECT_TRUE(viewer.storedSettings().contains("size=@Size(1000 800)"));
}

TEST(Program, EveryTerminationSignalEndsItLikeClosingItsWindow) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        SCOPED_TRACE(number);
        RunningViewer viewer(qEnvironmentVariable("DISPLAY"));
        ASSERT_TRUE(viewer.waitForWindow());
        viewer.send(number);
        expectGoodEndAndStored(viewer, "size=@Size(400 400)");
    }
}

TEST(Program, TerminationSignalEndsItWithADialogOpen) {
    TiedViewer viewer;
    const QImage before = viewer.screen();
    viewer.key("ctrl+p");
    EXPECT_TRUE(viewer.waitUntilChanged(before.rect(), before));
    viewer.terminate();
    expectGoodEndAndStored(viewer, "size=@Size(1000 800)");
}

TEST(Program, TerminationSignalEndsItWithTheErrorBoxOpen) {
    TiedViewer viewer;
    // A place that the dialog covers and the narrower box does not.
    const QRect besideTheBox = viewer.helixView().adjusted(0, 0, -150, 0);
    const QImage before = viewer.screen();
    const QImage uncovered = before.copy(besideTheBox);
    viewer.key("ctrl+p");
    EXPECT_TRUE(viewer.waitUntilChanged(besideTheBox, uncovered));
    // K1, where the cursor is, may not exceed K2, which is 1.5.
    viewer.key("9");
    viewer.key("Return");
    EXPECT_TRUE(viewer.waitUntilLike(besideTheBox, uncovered));
    EXPECT_NE(viewer.screen(), before);
    viewer.terminate();
    expectGoodEndAndStored(viewer, "size=@Size(1000 800)");
}

TEST(Program, TerminationSignalDuringStartUpEndsIt) {
    RunningViewer viewer(qEnvironmentVariable("DISPLAY"));
    EXPECT_TRUE(viewer.waitForAnyWindow());
    viewer.terminate();
    expectGoodEnd(viewer);
}

TEST(Program, ClosingItDuringStartUpEndsIt) {
    RunningViewer viewer(qEnvironmentVariable("DISPLAY"));
    ASSERT_TRUE(viewer.closeBeforeItIsShown());
    expectGoodEndAndStored(viewer, "size=@Size(400 400)");
}

TEST(Program, LosingTheDisplayEndsItWithAMessage) {
    OwnDisplay display;
    RunningViewer viewer(display.name());
    ASSERT_TRUE(viewer.waitForWindow());
    display.kill();
    ASSERT_TRUE(viewer.waitForEnd());
    EXPECT_NE(viewer.exitCode(), 0);
    EXPECT_NE(viewer.errors(), "");
}

TEST(Program, WindowManagerClosesItAndItsGeometryIsStored) {
    const OwnDisplay display;
    const WindowManager windowManager(display);
    RunningViewer viewer(display.name());
    ASSERT_TRUE(viewer.waitForWindow());
    ASSERT_TRUE(viewer.keyUntilEnd("alt+F4"));
    expectGoodEndAndStored(viewer, "size=@Size(400 400)");
    // With its frame: otherwise it would wander by its title bar at every start.
    EXPECT_TRUE(viewer.storedSettings().contains("pos=@Point(200 200)"))
        << qPrintable(viewer.storedSettings());
}
