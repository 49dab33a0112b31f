#pragma once

#include "tests/support/RedrawCounter.h"

#include <algorithm>
#include <memory>
#include <vector>

/** Counts the drawings of several frames side by side. */
class RedrawCounters {
public:
    explicit RedrawCounters(const std::vector<SoQtGeneralViewerFrame*>& frames) {
        for (const SoQtGeneralViewerFrame* frame : frames) {
            counters.push_back(std::make_unique<RedrawCounter>(*frame));
        }
        take();
    }

    /** For drawings that the window system asks for, and not the scene. */
    bool waitUntilAllAreDrawn() const {
        return waitUntil([&] {
            return std::all_of(counters.begin(), counters.end(),
                               [](const auto& counter) { return counter->soFar() > 0; });
        });
    }

    /** How often each frame was drawn since the last call, in the order of the frames. */
    std::vector<int> take() {
        RedrawCounter::settle();
        std::vector<int> counts;
        for (const auto& counter : counters) {
            counts.push_back(counter->take());
        }
        return counts;
    }

private:
    std::vector<std::unique_ptr<RedrawCounter>> counters;
};
