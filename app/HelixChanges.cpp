#include "app/HelixChanges.h"

#include "helix/HelixFrame.h"
#include "helix/HelixParameter.h"

namespace {

template <typename Value>
void change(HelixFrame* helix, void (HelixFrame::*set)(Value, bool), Value value) {
    if (helix != nullptr) {
        (helix->*set)(value, true);
    }
}

} // namespace

void HelixChanges::setTubeRadius(HelixFrame* helix, int steps) {
    change(helix, &HelixFrame::set_tube_radius, steps / HelixParameter::lengthSteps);
}

void HelixChanges::setRibbonRange(HelixFrame* helix, int steps) {
    change(helix, &HelixFrame::set_ribbon_range, steps / HelixParameter::lengthSteps);
}

void HelixChanges::setTurns(HelixFrame* helix, int turns) {
    change(helix, &HelixFrame::set_nturns, static_cast<double>(turns));
}

void HelixChanges::setLinePrecision(HelixFrame* helix, int verticesPerTurn) {
    change(helix, &HelixFrame::set_precision_line, verticesPerTurn);
}

void HelixChanges::setTubePrecision(HelixFrame* helix, int verticesPerRing) {
    change(helix, &HelixFrame::set_precision_tube, verticesPerRing);
}
