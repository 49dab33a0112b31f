#pragma once

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "tests/support/RecordingOwner.h"
#include "tests/support/ViewDriver.h"
#include "tests/support/Waiting.h"

#include <array>
#include <memory>
#include <vector>

/**
 * Frames that know each other as those of the main window do, without one: the hyperboloid in its
 * three spaces and a helix at vertex 0 with its sphere in each of them, tied to none. They have
 * their start-up parameters and lie on the screen side by side, drawn.
 */
class LinkedFrames {
public:
    LinkedFrames();
    ~LinkedFrames() = default;
    LinkedFrames(const LinkedFrames&) = delete;
    LinkedFrames& operator=(const LinkedFrames&) = delete;

    HyperboloidFrame& hyperboloid(int space) const {
        return *hyperboloids.at(static_cast<std::size_t>(space));
    }
    HelixFrame& firstHelix() const { return *helix; }

    /** U, X, M and the helix. */
    std::vector<SoQtGeneralViewerFrame*> frames() const;

    /** What the frames have reported. */
    const RecordingOwner& owner() const { return recorder; }

    /** Lets picks and keys in a hyperboloid's frame steer a helix. */
    static void tie(HelixFrame& steered, HyperboloidFrame& hyperboloid) {
        hyperboloid.SetPreviousHelix(&steered);
    }

    /** Puts the frames on the screen side by side, and waits until they are drawn. */
    void showSideBySide() const;

private:
    RecordingOwner recorder;
    std::array<std::unique_ptr<HyperboloidFrame>, 3> hyperboloids;
    std::unique_ptr<HelixFrame> helix;
};
