#pragma once

#include <array>
#include <cstddef>

/**
 * What the light units of an OpenGL context hold, whether they are switched on or not.
 *
 * The Phong program sums the light of all units, and a unit that is switched off keeps its last
 * light. A picture drawn in a new context looks like the one on the screen only when its units hold
 * the same.
 */
class LightUnits {
public:
    /** Reads the units of the current context. */
    static LightUnits ofCurrentContext();

    /** Sets the units of the current context; which ones are switched on stays as it is. */
    void apply() const;

private:
    static constexpr std::size_t unitCount = 8;
    using Vector = std::array<float, 4>;

    struct Unit {
        Vector ambient;
        Vector diffuse;
        Vector specular;
        /** In the eye's coordinates. */
        Vector position;
    };

    std::array<Unit, unitCount> units{};
};
