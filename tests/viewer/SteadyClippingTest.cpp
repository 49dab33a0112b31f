#include "viewer/SteadyClipping.h"
#include "tests/viewer/ShownFrame.h"

#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <gtest/gtest.h>

TEST(SteadyClipping, LeavesThePlanesWhereTheyAreForARounding) {
    SteadyClipping clipping;
    const SbVec2f planes(1.713F, 23.77F);
    EXPECT_EQ(clipping.planesFor(planes), planes);
    for (const float share : {1 - 4e-6F, 1 + 4e-6F}) {
        EXPECT_EQ(clipping.planesFor(planes * share), planes);
    }
    EXPECT_EQ(clipping.planesFor(SbVec2f(planes[0] + 1e-4F, planes[1])), planes);
}

TEST(SteadyClipping, MovesThePlanesForMore) {
    SteadyClipping clipping;
    for (const SbVec2f& planes : {SbVec2f(1.713F, 23.77F), SbVec2f(1.714F, 23.77F),
                                  SbVec2f(1.714F, 23.78F), SbVec2f(-1.714F, 23.78F)}) {
        EXPECT_EQ(clipping.planesFor(planes), planes);
    }
}

TEST(SteadyClipping, TakesTheLibrarysOwnPlanesInAViewer) {
    const FrameOnScreen shown;
    QWidget window;
    window.resize(shown.driver().widget().size());
    SoQtExaminerViewer plain(&window, "plain", TRUE, SoQtFullViewer::BUILD_NONE);
    plain.setSceneGraph(shown.get().getSceneRoot());
    plain.show();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    SoQtViewer& ours = *shown.get().getViewer();
    for (const SoType& type :
         {SoPerspectiveCamera::getClassTypeId(), SoOrthographicCamera::getClassTypeId()}) {
        for (const float distance : {0.31F, 1.73F, 33.3F}) {
            for (SoQtViewer* viewer : {&ours, static_cast<SoQtViewer*>(&plain)}) {
                viewer->setCameraType(type);
                viewer->getCamera()->position.setValue(0.1F, 0.2F, distance);
                viewer->getCamera()->orientation = SbRotation::identity();
                viewer->render();
            }
            EXPECT_EQ(ours.getCamera()->nearDistance.getValue(),
                      plain.getCamera()->nearDistance.getValue());
            EXPECT_EQ(ours.getCamera()->farDistance.getValue(),
                      plain.getCamera()->farDistance.getValue());
        }
    }
}
