#include "app/ActiveFrames.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

ActiveFrames::ActiveFrames()
    : placeholders{{{true, nullptr}, {true, nullptr}}}
    , currentFrame(&placeholders[0])
    , previousFrame(&placeholders[1]) {}

void ActiveFrames::activate(SoQtGeneralViewerFrame* frame) {
    if (frame == nullptr) {
        return;
    }
    previousFrame = currentFrame;
    currentFrame = frame;
    if (previousFrame && currentFrame->GetType() == HyperboloidFrame::Type() &&
        previousFrame->GetType() == HelixFrame::Type()) {
        qobject_cast<HyperboloidFrame*>(currentFrame)
            ->SetPreviousHelix(qobject_cast<HelixFrame*>(previousFrame));
    }
}

HelixFrame* ActiveFrames::currentHelix() const {
    return qobject_cast<HelixFrame*>(currentFrame);
}
