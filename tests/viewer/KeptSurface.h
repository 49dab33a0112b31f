#pragma once

#include "tests/support/KeptPictures.h"
#include "tests/viewer/ShownFrame.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoEnvironment.h>
#include <Inventor/nodes/SoFaceSet.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSphere.h>
#include <Inventor/nodes/SoTranslation.h>
#include <array>

/** What the tests put around and in the place of the frame's surface. */
namespace KeptScene {

inline const SbColor red(1, 0, 0);
inline const SbColor green(0, 1, 0);
inline const SbColor blue(0, 0, 1);

inline SoMaterial* createMaterial(const SbColor& color) {
    auto* material = new SoMaterial;
    material->diffuseColor = color;
    material->ambientColor = color;
    return material;
}

/** A triangle that covers the middle of the view, slanted, so that its depth is all numbers. */
inline SoSeparator* createTriangle(const SbColor& color, float size = 1) {
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

inline SoSeparator* createBall(const SbColor& color, const SbVec3f& place, float radius) {
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

} // namespace KeptScene

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
                KeptScene::createBall(KeptScene::green, SbVec3f(corner, corner, corner), 0.01F));
        }
        // Many pictures are drawn of a view that need not be large.
        frame().setMinimumSize(1, 1);
        resize(QSize(310, 250));
    }

    void resize(const QSize& size) {
        frame().resize(size);
        waitUntilDrawn();
    }

    /** After a change of size or of the widget: until a frame draws the surface in its place. */
    void waitUntilDrawn() {
        EXPECT_TRUE(waitUntil([this] {
            pictures.shown();
            const QWidget& widget = shown.driver().widget();
            return pictures.drawnSurfaces() > 0 &&
                   viewer().getViewportRegion().getWindowSize()[0] ==
                       qRound(widget.width() * widget.devicePixelRatioF());
        }));
    }

    void setSurface(SoNode* surface) const {
        constexpr int behindTheLook = 2;
        frame().drawStyleBranch()->replaceChild(behindTheLook, surface);
    }

    SoEnvironment& environment() const {
        return static_cast<SoEnvironment&>(*frame().getSceneRoot()->getChild(0));
    }

    /** A part of the window by its lower left corner and its width. */
    SbViewportRegion partOfWindow(int left, int bottom, int width) const {
        SbViewportRegion region = viewer().getViewportRegion();
        const auto pixels = [](int number) {
            return static_cast<short>(number);
        };
        region.setViewportPixels(pixels(left), pixels(bottom), pixels(width),
                                 pixels(width * 2 / 3));
        return region;
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

    /** Expects the surface to be drawn in every frame, though nothing changes. */
    void expectNeverKept() {
        for (int i = 0; i < 2 * framesUntilKept; ++i) {
            expectDrawnAndSame();
        }
    }

    QColor middle() {
        const QImage picture = pictures.shown();
        return picture.pixelColor(picture.rect().center());
    }

    static constexpr int framesUntilKept = 3;
    const FrameOnScreen shown;
    KeptPictures pictures{shown.get()};
};
