#pragma once

#include "tests/support/ViewDriver.h"
#include "tests/support/Waiting.h"
#include "viewer/SoQtGeneralViewer.h"
#include "viewer/SoQtGeneralViewerFrame.h"

#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/events/SoLocation2Event.h>
#include <Inventor/events/SoMouseButtonEvent.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShaderProgram.h>
#include <Inventor/nodes/SoSwitch.h>
#include <gtest/gtest.h>
#include <vector>

/** A frame with a cone in it that keeps a record of what the viewer asks of it. */
class ShownFrame : public SoQtGeneralViewerFrame {
public:
    explicit ShownFrame(bool closable = true)
        : SoQtGeneralViewerFrame(closable, nullptr) {}

    void SetEventHandlers() override { calls.emplace_back("SetEventHandlers"); }
    void Draw() override {
        calls.emplace_back(getViewer() == nullptr ? "Draw without viewer" : "Draw with viewer");
        drawStyleSeparator->addChild(new SoCone);
    }
    int processSoEvent(const SoEvent* event) override {
        if (event->isOfType(SoKeyboardEvent::getClassTypeId())) {
            keys.push_back(static_cast<const SoKeyboardEvent*>(event)->getKey());
        } else if (event->isOfType(SoMouseButtonEvent::getClassTypeId())) {
            ++mouseButtons;
        } else if (event->isOfType(SoLocation2Event::getClassTypeId())) {
            ++motions;
        }
        return consumes ? answer : 0;
    }
    void toggleDrawStyle() override {
        calls.emplace_back("toggleDrawStyle");
        SoQtGeneralViewerFrame::toggleDrawStyle();
    }

    const DocumentScene& documentScene() const { return *scene; }
    SoSwitch& shading() const { return *scene->getShadingSwitch(); }
    SoDrawStyle& style() const { return *scene->getDrawStyle(); }
    SoSeparator* phongBranch() const { return phongSeparator; }
    SoSeparator* drawStyleBranch() const { return drawStyleSeparator; }

    std::vector<std::string> calls;
    std::vector<SoKeyboardEvent::Key> keys;
    int mouseButtons = 0;
    int motions = 0;
    bool consumes = false;
    /** To what it consumes. */
    int answer = 1;
};

/** A shown frame on the screen, drawn. */
class FrameOnScreen {
public:
    FrameOnScreen() {
        frame->initialize();
        frame->show();
        EXPECT_TRUE(waitUntil([this] { return driver().isDrawn(); }));
    }
    ~FrameOnScreen() = default;
    FrameOnScreen(const FrameOnScreen&) = delete;
    FrameOnScreen& operator=(const FrameOnScreen&) = delete;

    ShownFrame& get() const { return *frame; }
    ViewDriver driver() const { return ViewDriver(*frame); }

private:
    std::unique_ptr<ShownFrame> frame = std::make_unique<ShownFrame>();
};
