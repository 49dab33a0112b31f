#include "batch/Refusal.h"

#include "batch/Numbers.h"

namespace {

std::string assignment(std::string_view name, double value) {
    return std::string(name) + " = " + Numbers::text(value);
}

/** The values that a condition is on. */
std::string numbersOf(HyperboloidCondition condition, const HyperboloidParameters& set) {
    std::string text = assignment("K1", set.K1) + ", " + assignment("K2", set.K2);
    if (condition == HyperboloidCondition::quadric) {
        text += ", " + assignment("K3", set.K3) + ", " + assignment("K13", set.K13) + ", " +
                assignment("K23", set.K23);
    }
    return text;
}

} // namespace

std::string Refusal::outOfRange(const HyperboloidParameter& parameter, double value) {
    return assignment(parameter.name, value) + " " +
           Numbers::fault(value, parameter.minimum, parameter.maximum, parameter.decimals == 0);
}

std::string Refusal::brokenCondition(const HyperboloidParameters& set) {
    const HyperboloidCondition broken = set.brokenCondition();
    if (broken == HyperboloidCondition::none) {
        return {};
    }
    return std::string(formulaOf(broken)) + " does not hold: " + numbersOf(broken, set);
}
