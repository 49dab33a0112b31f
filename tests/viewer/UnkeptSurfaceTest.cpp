#include "tests/viewer/KeptSurface.h"
#include "viewer/OffscreenContexts.h"

#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/SoSceneManager.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <utility>

using namespace KeptScene;

TEST_F(KeptSurface, IsNotKeptWhileAnythingIsTransparent) {
    around().addChild(createBall(green, SbVec3f(-0.42F, 0.17F, -0.8F), 0.2F));
    auto* glass = createMaterial(blue);
    glass->transparency = 0.5F;
    keep();
    frame().drawStyleBranch()->insertChild(glass, 2);
    expectNeverKept();
    glass->transparency = 0;
    keep();
    // Whichever of its colours are.
    glass->diffuseColor.set1Value(1, green);
    glass->transparency.set1Value(1, 0.5F);
    expectNeverKept();
    glass->transparency = 0;
    keep();
    SoSeparator* ball = createBall(red, SbVec3f(0.2F, 0.1F, 0.9F), 0.3F);
    around().addChild(ball);
    static_cast<SoMaterial*>(ball->getChild(0))->transparency = 0.5F;
    expectDrawnAndSame();
}

TEST_F(KeptSurface, IsNotKeptInStylesOfTheViewersOwn) {
    for (const auto style : {SoQtViewer::VIEW_LINE, SoQtViewer::VIEW_HIDDEN_LINE,
                             SoQtViewer::VIEW_WIREFRAME_OVERLAY, SoQtViewer::VIEW_BBOX}) {
        SCOPED_TRACE(style);
        keep();
        viewer().setDrawStyle(SoQtViewer::STILL, style);
        expectNeverKept();
        viewer().setDrawStyle(SoQtViewer::STILL, SoQtViewer::VIEW_AS_IS);
    }
    keep();
    viewer().setDrawStyle(SoQtViewer::INTERACTIVE, SoQtViewer::VIEW_LINE);
    expectNeverKept();
}

TEST_F(KeptSurface, IsNotKeptInASceneWithLightsOfItsOwn) {
    auto* light = new SoDirectionalLight;
    light->direction.setValue(1, -0.7F, -0.4F);
    around().addChild(light);
    expectNeverKept();
    light->intensity = 0.3F;
    expectNeverKept();
}

TEST_F(KeptSurface, IsNotKeptWithSmoothedLinesOrSeveralPasses) {
    for (const auto& [smoothing, passes] : {std::pair(TRUE, 1), std::pair(FALSE, 2)}) {
        viewer().setAntialiasing(FALSE, 1);
        keep();
        viewer().setAntialiasing(smoothing, passes);
        expectNeverKept();
    }
}

TEST_F(KeptSurface, IsNotKeptInStereo) {
    keep();
    viewer().setCameraType(SoPerspectiveCamera::getClassTypeId());
    ASSERT_TRUE(viewer().setStereoType(SoQtViewer::STEREO_ANAGLYPH));
    expectNeverKept();
    // Both eyes see the same, each in its own colours.
    viewer().setStereoOffset(0);
    expectNeverKept();
}

TEST_F(KeptSurface, IsNotKeptWhereOneFrameIsDrawnOverTheOther) {
    for (const auto& [color, depth] : {std::pair(FALSE, TRUE), std::pair(TRUE, FALSE)}) {
        viewer().setClearBeforeRender(TRUE, TRUE);
        keep();
        viewer().setClearBeforeRender(color, depth);
        expectNeverKept();
    }
}

TEST_F(KeptSurface, IsNotKeptWithoutMultisampling) {
    viewer().setSampleBuffers(1);
    waitUntilDrawn();
    expectNeverKept();
}

TEST_F(KeptSurface, IsDrawnElsewhereWithoutTheKeptPicture) {
    keep();
    const QImage picture = pictures.shown();
    OffscreenContexts::install();
    SoOffscreenRenderer renderer(viewer().getViewportRegion());
    for (int i = 0; i < 2 * framesUntilKept; ++i) {
        pictures.drawnSurfaces();
        EXPECT_TRUE(renderer.render(viewer().getSceneManager()->getSceneGraph()));
        EXPECT_EQ(pictures.drawnSurfaces(), 1);
    }
    EXPECT_EQ(pictures.shown(), picture);
    EXPECT_EQ(pictures.drawnSurfaces(), 0);
}

TEST_F(KeptSurface, IsNotKeptWithoutABackBuffer) {
    keep();
    viewer().setBufferingType(SoQtViewer::BUFFER_SINGLE);
    viewer().setSampleBuffers(4);
    waitUntilDrawn();
    for (int i = 0; i < framesUntilKept; ++i) {
        pictures.shown();
        EXPECT_EQ(pictures.drawnSurfaces(), 1);
    }
    // In another OpenGL context, whose format need not be the first one's.
    viewer().setBufferingType(SoQtViewer::BUFFER_DOUBLE);
    waitUntilDrawn();
    pictures.shown();
    for (int i = 0; i < 2 * framesUntilKept; ++i) {
        EXPECT_EQ(pictures.shown(), pictures.wholly());
    }
}

// As in the view of a helix: what stands around nothing would be drawn twice for it.
TEST_F(KeptSurface, IsNotKeptWhereThereIsNone) {
    setSurface(new SoSeparator);
    RedrawCounter surroundings(around());
    for (int i = 0; i < 2 * framesUntilKept; ++i) {
        pictures.shown();
        EXPECT_EQ(surroundings.take(), 1);
    }
}

TEST_F(KeptSurface, IsNotKeptWhenSwitchedOff) {
    viewer().setKeepsPictures(false);
    for (int i = 0; i < framesUntilKept; ++i) {
        pictures.shown();
        EXPECT_EQ(pictures.drawnSurfaces(), 1);
    }
}

TEST(KeptSurfaces, AreSwitchedOffByTheEnvironment) {
    qputenv("TORVANE_KEEP_PICTURES", "0");
    const FrameOnScreen shown;
    qunsetenv("TORVANE_KEEP_PICTURES");
    RedrawCounter surfaces(*shown.get().drawStyleBranch());
    for (int i = 0; i < 5; ++i) {
        shown.get().getViewer()->render();
        EXPECT_EQ(surfaces.take(), 1);
    }
}

TEST(KeptSurfaces, StayWhateverElseTheEnvironmentSays) {
    qputenv("TORVANE_KEEP_PICTURES", "1");
    const FrameOnScreen shown;
    qunsetenv("TORVANE_KEEP_PICTURES");
    KeptPictures pictures(shown.get());
    pictures.shown();
    pictures.shown();
    pictures.drawnSurfaces();
    pictures.shown();
    EXPECT_EQ(pictures.drawnSurfaces(), 0);
}

// Nothing counts the drawings here: what counts is never part of a display list.
TEST(KeptSurfaces, AreNotKeptWithinADisplayList) {
    const FrameOnScreen shown;
    SoQtGeneralViewer& viewer = *shown.get().getViewer();
    const auto picture = [&] {
        viewer.render();
        RedrawCounter::settle();
        return shown.driver().grab();
    };
    SoSFEnum& caching =
        static_cast<SoSeparator*>(viewer.getSceneManager()->getSceneGraph())->renderCaching;
    for (const float place : {0.31F, -0.23F, 0.11F, 0.45F}) {
        shown.get().phongBranch()->addChild(createBall(red, SbVec3f(place, -place, 0.9F), 0.17F));
        caching = SoSeparator::ON;
        const std::vector<QImage> repeated{picture(), picture(), picture(), picture()};
        caching = SoSeparator::OFF;
        const QImage wholly = KeptPictures::drawnWholly(shown.get());
        EXPECT_EQ(repeated, std::vector<QImage>(repeated.size(), wholly));
    }
}
