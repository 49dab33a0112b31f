#include "tests/viewer/ShownFrame.h"

#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/** What the viewer answers to the press of a key: whether anybody has consumed it. */
bool consumesPress(SoQtGeneralViewer& viewer, SoKeyboardEvent::Key key) {
    SoKeyboardEvent press;
    press.setKey(key);
    press.setState(SoButtonEvent::DOWN);
    return viewer.sendSoEvent(&press) != FALSE;
}

} // namespace

TEST(ViewerEvents, SpaceChangesTheDrawStyleAndNeverReachesTheFrame) {
    const FrameOnScreen shown;
    shown.driver().key(Qt::Key_Space);
    EXPECT_EQ(shown.get().shading().whichChild.getValue(), 1);
    shown.driver().key(Qt::Key_Space);
    EXPECT_EQ(shown.get().style().style.getValue(), SoDrawStyle::LINES);
    shown.driver().key(Qt::Key_Space);
    EXPECT_EQ(shown.get().shading().whichChild.getValue(), 0);
    // The releases of the key are the frame's to see; the presses are not.
    EXPECT_EQ(shown.get().keys.size(), 3U);
    // The frame may have a way of its own.
    EXPECT_EQ(shown.get().calls.back(), "toggleDrawStyle");
}

TEST(ViewerEvents, PAndOChangeTheCameraAndTheirPressesNeverReachTheFrame) {
    const FrameOnScreen shown;
    shown.driver().key(Qt::Key_P);
    EXPECT_EQ(shown.get().getViewer()->getCameraType(), SoPerspectiveCamera::getClassTypeId());
    shown.driver().key(Qt::Key_O);
    EXPECT_EQ(shown.get().getViewer()->getCameraType(), SoOrthographicCamera::getClassTypeId());
    EXPECT_EQ(shown.get().keys,
              (std::vector<SoKeyboardEvent::Key>{SoKeyboardEvent::P, SoKeyboardEvent::O}));
}

TEST(ViewerEvents, KeysOfTheViewersOwnWorkInPickingModeToo) {
    const FrameOnScreen shown;
    SoQtGeneralViewer& viewer = *shown.get().getViewer();
    viewer.setViewing(FALSE);
    shown.driver().key(Qt::Key_Space);
    EXPECT_EQ(shown.get().shading().whichChild.getValue(), 1);
    shown.driver().key(Qt::Key_P);
    EXPECT_EQ(viewer.getCameraType(), SoPerspectiveCamera::getClassTypeId());
    shown.driver().key(Qt::Key_O);
    EXPECT_EQ(viewer.getCameraType(), SoOrthographicCamera::getClassTypeId());
    EXPECT_EQ(shown.get().keys.size(), 3U);
}

TEST(ViewerEvents, KeysOfTheViewersOwnWorkWhateverElseIsHeldDown) {
    const FrameOnScreen shown;
    const auto keyWithShift = [&](Qt::Key key) {
        QTest::keyClick(&shown.driver().widget(), key, Qt::ShiftModifier);
    };
    keyWithShift(Qt::Key_Space);
    EXPECT_EQ(shown.get().shading().whichChild.getValue(), 1);
    keyWithShift(Qt::Key_P);
    EXPECT_EQ(shown.get().getViewer()->getCameraType(), SoPerspectiveCamera::getClassTypeId());
    keyWithShift(Qt::Key_O);
    EXPECT_EQ(shown.get().getViewer()->getCameraType(), SoOrthographicCamera::getClassTypeId());
}

TEST(ViewerEvents, ViewerTellsWhetherAnybodyHasConsumedAnEvent) {
    const FrameOnScreen shown;
    SoQtGeneralViewer& viewer = *shown.get().getViewer();
    for (const auto key : {SoKeyboardEvent::P, SoKeyboardEvent::O, SoKeyboardEvent::SPACE}) {
        EXPECT_TRUE(consumesPress(viewer, key)) << key;
    }
    EXPECT_TRUE(shown.get().keys.empty());
    EXPECT_FALSE(consumesPress(viewer, SoKeyboardEvent::W));
    shown.get().consumes = true;
    EXPECT_TRUE(consumesPress(viewer, SoKeyboardEvent::W));
    shown.get().consumes = false;
    EXPECT_TRUE(consumesPress(viewer, SoKeyboardEvent::S)) << "the examiner's own";
}

TEST(ViewerEvents, EveryStyleAndCameraShowsAnotherPicture) {
    const FrameOnScreen shown;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Space, Qt::Key_P, Qt::Key_Space, Qt::Key_O}) {
        const QImage before = shown.driver().grab();
        shown.driver().key(key);
        EXPECT_TRUE(waitUntil([&] { return shown.driver().grab() != before; }));
        EXPECT_TRUE(shown.driver().isDrawn());
    }
}

TEST(ViewerEvents, OtherKeysReachTheFramePressedAndReleased) {
    const FrameOnScreen shown;
    shown.driver().key(Qt::Key_W);
    shown.driver().key(Qt::Key_Up);
    EXPECT_EQ(shown.get().keys, (std::vector<SoKeyboardEvent::Key>{
                                    SoKeyboardEvent::W, SoKeyboardEvent::W,
                                    SoKeyboardEvent::UP_ARROW, SoKeyboardEvent::UP_ARROW}));
}

TEST(ViewerEvents, WhatTheFrameConsumesNeverReachesTheExaminer) {
    const FrameOnScreen shown;
    shown.get().consumes = true;
    for (const int answer : {1, -1, 256}) {
        shown.get().answer = answer;
        shown.driver().key(Qt::Key_S);
        EXPECT_FALSE(shown.get().getViewer()->isSeekMode()) << answer;
    }
    shown.get().consumes = false;
    shown.driver().key(Qt::Key_S);
    EXPECT_TRUE(shown.get().getViewer()->isSeekMode());
}

TEST(ViewerEvents, DragMovesTheCameraUnlessTheFrameConsumesIt) {
    const FrameOnScreen shown;
    const auto orientation = [&] {
        return shown.get().getViewer()->getCamera()->orientation.getValue();
    };
    const SbRotation before = orientation();
    shown.get().consumes = true;
    shown.driver().drag(Qt::LeftButton, QPoint(100, 100), QPoint(180, 140));
    EXPECT_EQ(orientation(), before);
    EXPECT_GE(shown.get().mouseButtons, 2);
    EXPECT_GE(shown.get().motions, 2);
    shown.get().consumes = false;
    shown.driver().drag(Qt::LeftButton, QPoint(100, 100), QPoint(180, 140));
    EXPECT_NE(orientation(), before);
}

TEST(ViewerEvents, FrameCanConsumeTheMotionsOfADragThatItLetBegin) {
    const FrameOnScreen shown;
    const SoCamera& camera = *shown.get().getViewer()->getCamera();
    const SbRotation before = camera.orientation.getValue();
    QTest::mousePress(&shown.driver().widget(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    shown.get().consumes = true;
    shown.driver().moveDragging(Qt::LeftButton, QPoint(180, 140));
    EXPECT_EQ(camera.orientation.getValue(), before);
}

TEST(ViewerEvents, RightButtonOpensNoPopupMenu) {
    const FrameOnScreen shown;
    shown.driver().click(Qt::RightButton, QPoint(100, 100));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(shown.get().mouseButtons, 2);
}
