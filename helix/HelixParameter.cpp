#include "helix/HelixParameter.h"

#include "helix/Helix.h"

namespace {

constexpr double wholeSteps = 1;

constexpr std::array<HelixParameter, HelixParameter::count> parameters{{
    {"tube-radius", "radius of the tube", 0, 1000, HelixParameter::lengthSteps,
     [](const Helix& helix) { return static_cast<double>(helix.getTubeR()); },
     [](Helix& helix, double value) {
         helix.setTubeR(static_cast<float>(value));
     }},
    {"ribbon-range", "width of the ribbon", 0, 2000, HelixParameter::lengthSteps,
     [](const Helix& helix) { return static_cast<double>(helix.getRibRange()); },
     [](Helix& helix, double value) {
         helix.setRibRange(static_cast<float>(value));
     }},
    {"turns", "number of turns", 0, 10, wholeSteps,
     [](const Helix& helix) { return static_cast<double>(helix.getNTurns()); },
     [](Helix& helix, double value) {
         helix.setNTurns(static_cast<float>(value));
     }},
    {"line-precision", "vertices of the centre line in a turn", 5, 200, wholeSteps,
     [](const Helix& helix) { return static_cast<double>(helix.getPrecisionLine()); },
     [](Helix& helix, double value) {
         helix.setPrecisionLine(static_cast<int>(value));
     }},
    {"tube-precision", "vertices around a ring of the tube", 5, 100, wholeSteps,
     [](const Helix& helix) { return static_cast<double>(helix.getPrecisionTube()); },
     [](Helix& helix, double value) {
         helix.setPrecisionTube(static_cast<int>(value));
     }},
}};

} // namespace

const std::array<HelixParameter, HelixParameter::count>& HelixParameter::all() {
    return parameters;
}
