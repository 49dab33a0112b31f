#pragma once

#include "viewer/SoQtGeneralViewerFrame.h"

#include <Inventor/SoDB.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCallback.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/sensors/SoSensorManager.h>
#include <QCoreApplication>
#include <gtest/gtest.h>

#include "tests/support/Waiting.h"

/** Counts how often a frame's scene, or a part of it, is drawn, by a node of its own at the end. */
class RedrawCounter {
public:
    explicit RedrawCounter(const SoQtGeneralViewerFrame& frame)
        : RedrawCounter(*frame.getSceneRoot()) {}
    explicit RedrawCounter(SoGroup& partOfScene)
        : part(&partOfScene)
        , node(new SoCallback) {
        node->setCallback(countDrawing, this);
        part->addChild(node.get());
        settle();
        count = 0;
    }
    ~RedrawCounter() { part->removeChild(node.get()); }
    RedrawCounter(const RedrawCounter&) = delete;
    RedrawCounter& operator=(const RedrawCounter&) = delete;

    /** Handles events until no view has a redraw pending. */
    static void settle() {
        SoSensorManager& sensors = *SoDB::getSensorManager();
        EXPECT_TRUE(waitUntil([&] {
            QCoreApplication::processEvents();
            return sensors.isDelaySensorPending() == FALSE;
        }));
        QCoreApplication::processEvents();
    }

    /** Times drawn since the last call. */
    int take() {
        settle();
        const int taken = count;
        count = 0;
        return taken;
    }

    /** Times drawn since the last take(), as of now: for views that are always about to be drawn.
     */
    int soFar() const { return count; }

private:
    static void countDrawing(void* counter, SoAction* action) {
        if (action->isOfType(SoGLRenderAction::getClassTypeId())) {
            ++static_cast<RedrawCounter*>(counter)->count;
        }
    }

    NodePointer<SoGroup> part;
    NodePointer<SoCallback> node;
    int count = 0;
};
