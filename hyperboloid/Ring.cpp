#include "hyperboloid/Ring.h"

#include <cmath>
#include <cstddef>

const std::array<Ring::Direction, Ring::pointCount>& Ring::directions() {
    static const std::array<Direction, pointCount> computed = [] {
        std::array<Direction, pointCount> ring{};
        for (int k = 0; k < pointCount; ++k) {
            // Not k * step, whose rounding is another.
            const double angle = k * Constants::fullTurn / stepCount;
            ring[static_cast<std::size_t>(k)] = {std::cos(angle), std::sin(angle)};
        }
        return ring;
    }();
    return computed;
}
