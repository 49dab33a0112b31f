#pragma once

#include "scene/SceneNodes.h"
#include "tests/support/SceneReader.h"

#include <Inventor/sensors/SoNodeSensor.h>

/** Counts how often a child of a given name is put into a group anew. */
class ReplacementCounter {
public:
    ReplacementCounter(SoSeparator& watchedGroup, const SbName& childName)
        : group(&watchedGroup)
        , name(childName)
        , seen(SceneReader::childNamed(watchedGroup, childName))
        , sensor(look, this) {
        sensor.setPriority(0); // at once
        sensor.attach(&watchedGroup);
    }
    ~ReplacementCounter() = default;
    ReplacementCounter(const ReplacementCounter&) = delete;
    ReplacementCounter& operator=(const ReplacementCounter&) = delete;

    /** Times since the last call. */
    int take() {
        const int taken = count;
        count = 0;
        return taken;
    }

private:
    static void look(void* counter, SoSensor* /*sensor*/) {
        auto& self = *static_cast<ReplacementCounter*>(counter);
        SoSeparator* child = SceneReader::childNamed(*self.group, self.name);
        if (child != nullptr && child != self.seen.get()) {
            ++self.count;
            self.seen = child;
        }
    }

    NodePointer<SoSeparator> group;
    SbName name;
    /** Kept alive, so that no new child can take its address. */
    NodePointer<SoSeparator> seen;
    SoNodeSensor sensor;
    int count = 0;
};
