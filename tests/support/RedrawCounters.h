#pragma once

#include "tests/support/RedrawCounter.h"

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
