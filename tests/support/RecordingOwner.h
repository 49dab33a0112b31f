#pragma once

#include "viewer/FrameOwner.h"

#include <vector>

/** An owner of frames that records what they report, and does nothing about it. */
class RecordingOwner : public FrameOwner {
public:
    void SayHypoImDead(SbName name) override { dead.push_back(name); }
    void viewerTitleChanged() override { ++titleChanges; }

    /** The names of the helices that died, the first first. */
    std::vector<SbName> dead;
    int titleChanges = 0;
};
