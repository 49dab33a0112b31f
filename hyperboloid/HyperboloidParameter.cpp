#include "hyperboloid/HyperboloidParameter.h"

#include "hyperboloid/HyperboloidParameters.h"

#include <algorithm>
#include <type_traits>

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
