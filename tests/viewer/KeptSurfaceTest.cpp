#include "tests/viewer/KeptSurface.h"
#include "tests/support/ResidentMemory.h"

#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <algorithm>
#include <cmath>

using namespace KeptScene;

TEST_F(KeptSurface, IsShownAgainFromTheThirdFrameInWhichNothingHasChanged) {
    viewer().getCamera()->orientation = SbRotation(SbVec3f(0.3F, 1, 0.2F), 0.4F);
    RedrawCounter::settle();
    pictures.drawnSurfaces();
    for (const int drawings : {1, 0, 0, 0}) {
        pictures.shown();
        EXPECT_EQ(pictures.drawnSurfaces(), drawings);
    }
}

TEST_F(KeptSurface, StaysTheSameWhateverIsPutBeforeAndBehindTheSurface) {
    keep();
    around().addChild(createBall(red, SbVec3f(0.31F, -0.23F, 0.9F), 0.27F));
    expectKeptAndSame();
    around().addChild(createBall(green, SbVec3f(-0.42F, 0.17F, -0.8F), 0.45F));
    expectKeptAndSame();
    solid().addChild(createBall(blue, SbVec3f(0.11F, 0.57F, 0.05F), 0.33F));
    expectKeptAndSame();
    around().removeChild(1);
    expectKeptAndSame();
}

TEST_F(KeptSurface, OfTwoThingsAtTheSameDepthShowsTheOneThatTheSceneHasLater) {
    setSurface(createTriangle(blue));
    around().addChild(createTriangle(red));
    keep();
    expectKeptAndSame();
    EXPECT_GT(middle().blue(), 0);
    EXPECT_EQ(middle().red(), 0);

    setSurface(createBall(blue, SbVec3f(1.7F, 1.3F, 0), 0.1F));
    solid().addChild(createTriangle(blue));
    keep();
    expectKeptAndSame();
    EXPECT_GT(middle().red(), 0);
    EXPECT_EQ(middle().blue(), 0);
    // What was nearest a frame ago leaves no mark.
    SoSeparator* ball = createBall(blue, SbVec3f(0, 0, 1), 0.6F);
    around().addChild(ball);
    expectKeptAndSame();
    around().removeChild(ball);
    around().addChild(createTriangle(green));
    expectKeptAndSame();
    EXPECT_GT(middle().green(), 0);
    EXPECT_EQ(middle().red(), 0);
}

TEST_F(KeptSurface, ShowsBallsThatCutEachOtherAndTheSurfaceAsInTheOrderOfTheScene) {
    keep();
    for (int i = 0; i < 12; ++i) {
        const auto angle = static_cast<float>(i * 0.77);
        around().addChild(createBall(SbColor(std::fabs(std::sin(angle)), 0.3F, 0.6F),
                                     SbVec3f(0.4F * std::cos(angle), 0.3F * std::sin(angle), 0.4F),
                                     0.43F));
        // At the very same place in another colour.
        around().addChild(createBall(SbColor(0.2F, std::fabs(std::cos(angle)), 0.1F),
                                     SbVec3f(0.4F * std::cos(angle), 0.3F * std::sin(angle), 0.4F),
                                     0.43F));
        expectKeptAndSame();
    }
}

TEST_F(KeptSurface, IsSeenBeforeItsEqualsAlsoWhereABallHasGone) {
    setSurface(createTriangle(red));
    around().addChild(createTriangle(green));
    const NodePointer<SoSeparator> ball(createBall(blue, SbVec3f(0, 0, 0.9F), 0.3F));
    around().addChild(ball.get());
    keep();
    expectKeptAndSame();
    EXPECT_GT(middle().blue(), 0);
    around().removeChild(ball.get());
    expectKeptAndSame();
    EXPECT_GT(middle().red(), 0);
    EXPECT_EQ(middle().green(), 0);

    // Nor is the mark of a ball kept with a picture that is taken anew.
    around().addChild(ball.get());
    keep();
    around().removeChild(ball.get());
    viewer().getHeadlight()->intensity = 0.7F;
    keep();
    expectKeptAndSame();
    EXPECT_GT(middle().red(), 0);
    EXPECT_EQ(middle().green(), 0);
}

TEST_F(KeptSurface, IsTakenAnewAfterWhateverChangesTheSurfaceOnTheScreen) {
    const std::vector<std::function<void()>> changes{
        [&] { viewer().getCamera()->orientation = SbRotation(SbVec3f(1, 2, 3), 0.21F); },
        [&] { viewer().getCamera()->position.setValue(0.12F, 0.05F, 4); },
        [&] { static_cast<SoOrthographicCamera*>(viewer().getCamera())->height = 3.1F; },
        [&] { viewer().setCameraType(SoPerspectiveCamera::getClassTypeId()); },
        [&] { viewer().getHeadlight()->intensity = 0.4F; },
        [&] { viewer().getHeadlight()->color = SbColor(0.9F, 0.7F, 0.8F); },
        [&] { environment().ambientIntensity = 0.7F; },
        [&] { environment().ambientColor = SbColor(0.3F, 0.9F, 0.6F); },
        [&] { viewer().setBackgroundColor(SbColor(0.2F, 0.4F, 0.3F)); },
        [&] { frame().toggleDrawStyle(); },
        [&] { frame().toggleDrawStyle(); },
        [&] { frame().toggleDrawStyle(); },
        [&] { frame().drawStyleBranch()->insertChild(createMaterial(green), 2); },
        [&] { frame().drawStyleBranch()->addChild(createTriangle(red, 1.7F)); },
        // Moves the clipping planes.
        [&] { around().addChild(createBall(blue, SbVec3f(0, 0, 7), 0.2F)); },
        // To the side, with the clipping planes and the light where they are.
        [&] {
            viewer().setAutoClipping(FALSE);
            SoSFVec3f& position = viewer().getCamera()->position;
            position = position.getValue() + SbVec3f(0.13F, -0.07F, 0);
        },
        [&] {
            viewer().setAutoClipping(TRUE);
            viewer().setViewportRegion(partOfWindow(13, 17, 300));
        },
        [&] { viewer().setViewportRegion(partOfWindow(29, 7, 300)); },
        [&] { viewer().setViewportRegion(partOfWindow(29, 7, 150)); },
    };
    int number = 0;
    for (const std::function<void()>& change : changes) {
        SCOPED_TRACE(number++);
        keep();
        const QImage before = pictures.wholly();
        change();
        pictures.settled();
        EXPECT_GT(pictures.drawnSurfaces(), 0);
        const QImage now = pictures.settled();
        EXPECT_EQ(now, pictures.wholly());
        EXPECT_NE(now, before);
        keep();
        expectKeptAndSame();
    }
}

TEST_F(KeptSurface, IsTakenAnewInAnotherSize) {
    keep();
    for (const QSize size : {QSize(417, 231), QSize(250, 377)}) {
        resize(size);
        keep();
        expectKeptAndSame();
    }
}

// What was hidden, or outside of the window, need not have been drawn before.
TEST_F(KeptSurface, IsTakenAnewWhenTheWindowSystemAsksForPainting) {
    keep();
    shown.driver().widget().update();
    pictures.settled();
    EXPECT_GT(pictures.drawnSurfaces(), 0);
    keep();
    expectKeptAndSame();
}

TEST_F(KeptSurface, StaysWhenAnotherViewGoesWithIts) {
    keep();
    {
        const FrameOnScreen other;
        for (int i = 0; i < framesUntilKept; ++i) {
            other.get().getViewer()->render();
        }
        RedrawCounter::settle();
        // Its context is the current one when the other view goes.
        pictures.shown();
    }
    // It has lain on this one, which is painted where it can be seen again.
    EXPECT_TRUE(waitUntil([this] { return pictures.drawnSurfaces() > 0; }));
    keep();
    expectKeptAndSame();
}

TEST(KeptSurfaces, GiveTheirMemoryBackWithTheirView) {
    constexpr int manyViews = 24;
    const auto openAndClose = [] {
        const FrameOnScreen shown;
        KeptPictures pictures(shown.get());
        pictures.shown();
        pictures.shown();
        pictures.drawnSurfaces();
        pictures.shown();
        EXPECT_EQ(pictures.drawnSurfaces(), 0);
    };
    // Another view lives on, and with it all that views share.
    const FrameOnScreen other;
    openAndClose();
    openAndClose();
    const long before = residentBytes();
    for (int i = 0; i < manyViews; ++i) {
        openAndClose();
    }
    constexpr long bytesPerPixel = 4 * 8;
    const QSize size = other.driver().widget().size();
    EXPECT_LT(residentBytes() - before,
              manyViews * bytesPerPixel * size.width() * size.height() / 4);
}
