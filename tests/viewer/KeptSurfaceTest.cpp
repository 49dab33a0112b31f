#include "tests/support/KeptPictures.h"
#include "tests/support/ResidentMemory.h"
#include "tests/viewer/ShownFrame.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoFaceSet.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoSphere.h>
#include <Inventor/nodes/SoTranslation.h>
#include <QGLWidget>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

const SbColor red(1, 0, 0);
const SbColor green(0, 1, 0);
const SbColor blue(0, 0, 1);

SoMaterial* createMaterial(const SbColor& color) {
    auto* material = new SoMaterial;
    material->diffuseColor = color;
    material->ambientColor = color;
    return material;
}

/** A triangle that covers the middle of the view, slanted, so that its depth is all numbers. */
SoSeparator* createTriangle(const SbColor& color, float size = 1) {
    auto* triangle = new SoSeparator;
    triangle->addChild(createMaterial(color));
    auto* corners = new SoCoordinate3;
    const std::array<SbVec3f, 3> points{SbVec3f(-0.71F, -0.62F, 0.37F) * size,
                                        SbVec3f(0.83F, -0.53F, -0.29F) * size,
                                        SbVec3f(0.07F, 0.79F, 0.13F) * size};
    corners->point.setValues(0, static_cast<int>(points.size()), points.data());
    triangle->addChild(corners);
    triangle->addChild(new SoFaceSet);
    return triangle;
}

SoSeparator* createBall(const SbColor& color, const SbVec3f& place, float radius) {
    SoSeparator* ball = SceneNodes::createSeparator("Ball");
    ball->addChild(createMaterial(color));
    auto* translation = new SoTranslation;
    translation->translation = place;
    ball->addChild(translation);
    auto* sphere = new SoSphere;
    sphere->radius = radius;
    ball->addChild(sphere);
    return ball;
}

/** A frame on the screen, its cone for a surface, with what the tests put around it. */
class KeptSurface : public testing::Test {
protected:
    ShownFrame& frame() const { return shown.get(); }
    SoQtGeneralViewer& viewer() const { return *frame().getViewer(); }
    SoSeparator& around() const { return *frame().phongBranch(); }
    SoSeparator& solid() const { return *frame().documentScene().getSolidSeparator(); }

    void SetUp() override {
        // Whatever lies between these moves no clipping plane.
        for (const float corner : {-2.0F, 2.0F}) {
            frame().getSceneRoot()->addChild(
                createBall(green, SbVec3f(corner, corner, corner), 0.01F));
        }
    }

    void setSurface(SoNode* surface) const {
        constexpr int behindTheLook = 2;
        frame().drawStyleBranch()->replaceChild(behindTheLook, surface);
    }

    /** Shows the picture until it is kept, and from then on puts it back. */
    void keep() {
        for (int i = 0; i < framesUntilKept; ++i) {
            pictures.shown();
        }
        pictures.drawnSurfaces();
        pictures.shown();
        EXPECT_EQ(pictures.drawnSurfaces(), 0);
    }

    /** Expects the kept picture to be shown, and to be what is drawn wholly. */
    void expectKeptAndSame() {
        const QImage kept = pictures.shown();
        EXPECT_EQ(pictures.drawnSurfaces(), 0);
        EXPECT_EQ(kept, pictures.wholly());
    }

    /** Expects that the surface is drawn, and the picture is what is drawn wholly. */
    void expectDrawnAndSame() {
        const QImage drawn = pictures.shown();
        EXPECT_GT(pictures.drawnSurfaces(), 0);
        EXPECT_EQ(drawn, pictures.wholly());
    }

    QColor middle() {
        const QImage picture = pictures.shown();
        return picture.pixelColor(picture.rect().center());
    }

    static constexpr int framesUntilKept = 3;
    const FrameOnScreen shown;
    KeptPictures pictures{shown.get()};
};

} // namespace

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

TEST_F(KeptSurface, IsTakenAnewAfterWhateverChangesTheSurfaceOnTheScreen) {
    const std::vector<std::function<void()>> changes{
        [&] { viewer().getCamera()->orientation = SbRotation(SbVec3f(1, 2, 3), 0.21F); },
        [&] { viewer().getCamera()->position.setValue(0.12F, 0.05F, 4); },
        [&] { static_cast<SoOrthographicCamera*>(viewer().getCamera())->height = 3.1F; },
        [&] { viewer().setCameraType(SoPerspectiveCamera::getClassTypeId()); },
        [&] { viewer().getHeadlight()->intensity = 0.4F; },
        [&] { viewer().getHeadlight()->color = SbColor(0.9F, 0.7F, 0.8F); },
        [&] { viewer().setBackgroundColor(SbColor(0.2F, 0.4F, 0.3F)); },
        [&] { frame().toggleDrawStyle(); },
        [&] { frame().toggleDrawStyle(); },
        [&] { frame().toggleDrawStyle(); },
        [&] { frame().drawStyleBranch()->insertChild(createMaterial(green), 2); },
        [&] { frame().drawStyleBranch()->addChild(createTriangle(red, 1.7F)); },
        // Moves the clipping planes.
        [&] { around().addChild(createBall(blue, SbVec3f(0, 0, 7), 0.2F)); },
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
    }
}

TEST_F(KeptSurface, IsNotKeptWhileAnythingIsTransparent) {
    auto* glass = createMaterial(blue);
    glass->transparency = 0.5F;
    keep();
    frame().drawStyleBranch()->insertChild(glass, 2);
    for (int i = 0; i < framesUntilKept; ++i) {
        expectDrawnAndSame();
    }
    glass->transparency = 0;
    keep();
    SoSeparator* ball = createBall(red, SbVec3f(0.2F, 0.1F, 0.9F), 0.3F);
    around().addChild(ball);
    static_cast<SoMaterial*>(ball->getChild(0))->transparency = 0.5F;
    expectDrawnAndSame();
}

TEST_F(KeptSurface, IsNotKeptInStylesOfTheViewersOwn) {
    keep();
    for (const auto style : {SoQtViewer::VIEW_LINE, SoQtViewer::VIEW_HIDDEN_LINE,
                             SoQtViewer::VIEW_WIREFRAME_OVERLAY, SoQtViewer::VIEW_BBOX}) {
        viewer().setDrawStyle(SoQtViewer::STILL, style);
        const QImage styled = pictures.shown();
        EXPECT_EQ(styled, pictures.shown());
        EXPECT_EQ(styled, pictures.wholly());
    }
    viewer().setDrawStyle(SoQtViewer::STILL, SoQtViewer::VIEW_AS_IS);
    keep();
    expectKeptAndSame();
}

TEST_F(KeptSurface, IsTakenAnewInAnotherSize) {
    keep();
    for (const QSize size : {QSize(617, 431), QSize(450, 577)}) {
        frame().resize(size);
        EXPECT_TRUE(waitUntil([&] {
            return viewer().getViewportRegion().getWindowSize()[0] ==
                   shown.driver().widget().width();
        }));
        keep();
        expectKeptAndSame();
    }
}

TEST_F(KeptSurface, IsNotKeptWithoutABackBuffer) {
    keep();
    viewer().setBufferingType(SoQtViewer::BUFFER_SINGLE);
    EXPECT_TRUE(waitUntil([&] { return shown.driver().isDrawn(); }));
    pictures.drawnSurfaces();
    for (int i = 0; i < framesUntilKept; ++i) {
        pictures.shown();
        EXPECT_EQ(pictures.drawnSurfaces(), 1);
    }
}

TEST_F(KeptSurface, IsNotKeptWhenSwitchedOff) {
    viewer().setKeepsPictures(false);
    for (int i = 0; i < framesUntilKept; ++i) {
        pictures.shown();
        EXPECT_EQ(pictures.drawnSurfaces(), 1);
    }
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
