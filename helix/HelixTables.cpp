#include "helix/HelixTables.h"

#include "helix/EvenSteps.h"
#include "math/Constants.h"
#include "scene/PositionColor.h"

#include <stdexcept>

namespace {

using Ring = std::vector<HelixProfile::RingOffset>;

/** A place on the centre line, and what the parts around it are made of there. */
struct Station {
    std::size_t i;
    FloatTriple center;
    FloatTriple color;
    Triple v;
    Triple b;
};

std::size_t tubeSize(const HelixTables::Counts& counts) {
    return static_cast<std::size_t>(counts.ring) * counts.line;
}

std::size_t ribbonSize(const HelixTables::Counts& counts) {
    return 2 * static_cast<std::size_t>(counts.line);
}

/** The offsets of one ring, whose last vertex repeats the first. */
Ring ringOf(const HelixProfile& profile, unsigned int count) {
    Ring ring;
    ring.reserve(count);
    const auto steps = static_cast<float>(stepsBetween(count));
    for (unsigned int j = 0; j < count; ++j) {
        const double angle = static_cast<float>(j) * Constants::fullTurn / steps;
        ring.push_back(profile.ringOffset(static_cast<float>(angle)));
    }
    return ring;
}

void fillRing(HelixTable& tube, const Station& at, const Ring& ring) {
    const Triple center = widened(at.center);
    std::size_t vertex = ring.size() * at.i;
    for (const HelixProfile::RingOffset& offset : ring) {
        tube.set(vertex, HelixProfile::tubeVertex(center, at.v, at.b, offset), at.color);
        ++vertex;
    }
}

void fillPair(HelixTable& ribbon, const Station& at, const HelixProfile& profile) {
    const Triple nowhere{0, 0, 0};
    const Triple outwards = profile.ribbonDirection(at.v, at.b);
    ribbon.set(2 * at.i, profile.ribbonVertex(at.center, nowhere), at.color);
    ribbon.set(2 * at.i + 1, profile.ribbonVertex(at.center, outwards), at.color);
}

} // namespace

void HelixTables::init(const Counts& counts, const Choice& chosen) {
    if (chosen.line) {
        line.init(counts.line);
    }
    if (chosen.tube) {
        tube.init(tubeSize(counts));
    }
    if (chosen.ribbon) {
        ribbon.init(ribbonSize(counts));
    }
}

void HelixTables::requireSizesOf(const Counts& counts) const {
    if (line.size() != counts.line || tube.size() != tubeSize(counts) ||
        ribbon.size() != ribbonSize(counts)) {
        throw std::logic_error(
            "The tables of the helix do not fit its counts: init_tables() was not called.");
    }
}

void HelixTables::fill(const Counts& counts, const Choice& chosen, const HelixCurve& curve,
                       const HelixProfile& profile) {
    requireSizesOf(counts);
    const bool fillsLine = chosen.line || !line.isFilled();
    const bool fillsTube = chosen.tube || !tube.isFilled();
    const bool fillsRibbon = chosen.ribbon || !ribbon.isFilled();
    const Ring ring = fillsTube ? ringOf(profile, counts.ring) : Ring();
    for (unsigned int i = 0; i < counts.line; ++i) {
        const float s = curve.arcLength(i, counts.line);
        const Turn theta = curve.thetaAt(s);
        if (fillsLine) {
            const FloatTriple point = curve.pointAt(s, theta);
            line.set(i, point, positionColor(point));
        }
        const Station station{i, line.getVertices()[i], line.getColors()[i],
                              HelixCurve::normalAt(theta), curve.binormalAt(theta)};
        if (fillsTube) {
            fillRing(tube, station, ring);
        }
        if (fillsRibbon) {
            fillPair(ribbon, station, profile);
        }
    }
    line.markFilled();
    tube.markFilled();
    ribbon.markFilled();
}
