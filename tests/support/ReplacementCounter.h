#pragma once

#include "scene/SceneNodes.h"
#include "tests/support/SceneReader.h"

#include <Inventor/sensors/SoNodeSensor.h>
#include <functional>
#include <utility>

/** Counts how often a child of a given name is put into a group anew. */
class ReplacementCounter {
public:
    /** Each time it calls a function, if there is one. */
    ReplacementCounter(SoSeparator& watchedGroup, const SbName& childName,
                       std::function<void()> whenReplaced = nullptr)
        : group(&watchedGroup)
        , name(childName)
        , replaced(std::move(whenReplaced))
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
            if (self.replaced) {
                self.replaced();
            }
        }
    }

    NodePointer<SoSeparator> group;
    SbName name;
    std::function<void()> replaced;
    /** Kept alive, so that no new child can take its address. */
    NodePointer<SoSeparator> seen;
    SoNodeSensor sensor;
    int count = 0;
};
