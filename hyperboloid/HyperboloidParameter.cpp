#include "hyperboloid/HyperboloidParameter.h"

#include "hyperboloid/HyperboloidParameters.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>
#include <type_traits>

bool HyperboloidParameter::admits(double value) const {
    const bool inRange = value >= minimum && value <= maximum;
    return inRange && (decimals > 0 || value == std::floor(value));
}

double HyperboloidParameter::valueIn(const HyperboloidParameters& set) const {
    return std::visit([&](auto value) { return static_cast<double>(set.*value); }, member);
}

void HyperboloidParameter::setValueIn(HyperboloidParameters& set, double value) const {
    std::visit(
        [&](auto target) {
            using Value = std::decay_t<decltype(set.*target)>;
            set.*target = static_cast<Value>(value);
        },
        member);
}

const HyperboloidParameter& HyperboloidParameter::of(Member member) {
    const auto& all = HyperboloidParameters::all();
    return *std::find_if(all.begin(), all.end(), [&](const HyperboloidParameter& parameter) {
        return parameter.member == member;
    });
}

const HyperboloidParameter& HyperboloidParameter::named(std::string_view name) {
    const auto& all = HyperboloidParameters::all();
    const auto* const found =
        std::find_if(all.begin(), all.end(),
                     [&](const HyperboloidParameter& parameter) { return parameter.name == name; });
    if (found == all.end()) {
        throw std::invalid_argument("There is no parameter " + std::string(name));
    }
    return *found;
}
