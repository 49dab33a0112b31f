#include "viewer/FittedCamera.h"

#include "tests/support/RedrawCounter.h"
#include "tests/viewer/ShownFrame.h"

#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoFont.h>
#include <Inventor/nodes/SoText2.h>
#include <Inventor/nodes/SoTransform.h>

namespace {

/** A viewer on the screen whose cone is moved, turned and scaled. */
class FittedCameraTest : public testing::Test {
protected:
    FittedCameraTest() {
        transform->translation.setValue(0.31F, -0.77F, 1.13F);
        transform->rotation.setValue(SbVec3f(1, 2, 3), 0.71F);
        transform->scaleFactor.setValue(1.7F, 2.3F, 0.9F);
        shown.get().documentScene().getRoot()->insertChild(transform, 0);
    }

    SoQtGeneralViewer& viewer() const { return *shown.get().getViewer(); }

    /** A copy of the viewer's camera, fitted to its scene. */
    NodePointer<SoCamera> fitted() const {
        return FittedCamera::copyOf(*viewer().getCamera(), *shown.get().getSceneRoot(),
                                    viewer().getViewportRegion());
    }

    /** The copy has the planes that the viewer gives its own camera when it draws. */
    void expectAsTheViewerDraws() const {
        const NodePointer<SoCamera> copy = fitted();
        const SoCamera& own = *viewer().getCamera();
        EXPECT_NE(copy->farDistance.getValue(), own.farDistance.getValue());
        viewer().render();
        EXPECT_FLOAT_EQ(copy->nearDistance.getValue(), own.nearDistance.getValue());
        EXPECT_FLOAT_EQ(copy->farDistance.getValue(), own.farDistance.getValue());
        EXPECT_TRUE(copy->position == own.position);
        EXPECT_TRUE(copy->orientation == own.orientation);
        EXPECT_EQ(copy->getTypeId(), own.getTypeId());
    }

    FrameOnScreen shown;
    // The scene owns it.
    SoTransform* transform = new SoTransform;
};

} // namespace

TEST_F(FittedCameraTest, OrthographicOneEnclosesTheSceneAsTheViewerDoes) {
    expectAsTheViewerDraws();
    transform->scaleFactor.setValue(11, 17, 13);
    expectAsTheViewerDraws();
    // Without a perspective, what is behind the eye is seen too.
    transform->translation.setValue(3, 5, 100);
    expectAsTheViewerDraws();
}

TEST_F(FittedCameraTest, WhatIsAsLargeAsTheScreenMakesItIsEnclosedAsTheViewerDoes) {
    shown.get().resize(713, 397);
    EXPECT_TRUE(waitUntil([&] {
        const SbVec2s size = viewer().getViewportRegion().getWindowSize();
        return size[0] > size[1] + 100;
    }));
    RedrawCounter::settle();
    auto* font = new SoFont;
    font->size = 97;
    shown.get().documentScene().getRoot()->addChild(font);
    auto* text = new SoText2;
    text->string = "Text of its own size";
    shown.get().documentScene().getRoot()->addChild(text);
    // Otherwise a pixel is as large in a view as high as this is wide.
    viewer().getCamera()->viewportMapping = SoCamera::LEAVE_ALONE;
    // What faces the screen is flat only where the camera looks along an axis.
    viewer().getCamera()->orientation.setValue(SbVec3f(0.3F, 1, 0.1F), 0.83F);
    expectAsTheViewerDraws();
}

TEST_F(FittedCameraTest, PerspectiveOneKeepsItsDistanceFromTheEye) {
    shown.driver().key(Qt::Key_P);
    viewer().render();
    transform->translation.setValue(0.1F, 0.2F, -3.3F);
    expectAsTheViewerDraws();
    // The eye is inside.
    transform->scaleFactor.setValue(110, 170, 130);
    expectAsTheViewerDraws();
}

TEST_F(FittedCameraTest, SceneBehindAPerspectiveCameraMovesNoPlane) {
    shown.driver().key(Qt::Key_P);
    viewer().render();
    transform->translation.setValue(0, 0, 1000);
    const NodePointer<SoCamera> copy = fitted();
    viewer().render();
    EXPECT_EQ(copy->farDistance.getValue(), viewer().getCamera()->farDistance.getValue());
    EXPECT_EQ(copy->nearDistance.getValue(), viewer().getCamera()->nearDistance.getValue());
}

TEST_F(FittedCameraTest, EmptySceneMovesNoPlane) {
    const SoCamera& own = *viewer().getCamera();
    const NodePointer<SoSeparator> empty(new SoSeparator);
    const NodePointer<SoCamera> copy =
        FittedCamera::copyOf(own, *empty, viewer().getViewportRegion());
    EXPECT_EQ(copy->farDistance.getValue(), own.farDistance.getValue());
    EXPECT_EQ(copy->nearDistance.getValue(), own.nearDistance.getValue());
}
