#include "batch/Sweep.h"

#include "batch/Numbers.h"
#include "batch/Refusal.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <utility>

namespace {

double valueOf(std::string_view text) {
    const std::optional<double> value = Numbers::read(text);
    if (!value) {
        throw std::invalid_argument(std::string(text) + " is no number");
    }
    return *value;
}

std::vector<double> spread(double start, double stop, int count) {
    constexpr int digits = 12;
    constexpr double roundingError = 1e-12;
    const double largest = std::max(std::fabs(start), std::fabs(stop));
    std::vector<double> values{start};
    for (int i = 1; i < count - 1; ++i) {
        const double share = static_cast<double>(i) / (count - 1);
        const double value = start + (stop - start) * share;
        const bool isZero = std::fabs(value) < roundingError * largest;
        values.push_back(isZero ? 0 : Numbers::rounded(value, digits));
    }
    if (count > 1) {
        values.push_back(stop);
    }
    return values;
}

} // namespace

Sweep Sweep::read(std::string_view text) {
    const auto sides = Numbers::split(text, '=');
    const auto parts = Numbers::split(sides.back(), ':');
    if (sides.size() != 2 || parts.size() != 3) {
        throw std::invalid_argument(std::string(text) + " is not NAME=START:STOP:COUNT");
    }
    const HyperboloidParameter& parameter = HyperboloidParameter::named(sides.front());
    const std::optional<int> count = Numbers::readWhole(parts[2]);
    if (!count || *count < 1 || *count > mostSets) {
        throw std::invalid_argument(std::string(parts[2]) + " is no number of values");
    }
    Sweep sweep{&parameter, spread(valueOf(parts[0]), valueOf(parts[1]), *count)};
    for (const double value : sweep.values) {
        if (!parameter.admits(value)) {
            throw std::invalid_argument(Refusal::outOfRange(parameter, value));
        }
    }
    const auto twice = std::adjacent_find(sweep.values.begin(), sweep.values.end());
    if (twice != sweep.values.end()) {
        throw std::invalid_argument(std::string(text) + " takes the value " +
                                    Numbers::text(*twice) + " more than once");
    }
    return sweep;
}

std::string sweptValues(const HyperboloidParameters& set, const std::vector<Sweep>& sweeps) {
    std::string text;
    for (const Sweep& sweep : sweeps) {
        text += text.empty() ? "" : ", ";
        text += std::string(sweep.parameter->name) + " = " +
                Numbers::text(sweep.parameter->valueIn(set));
    }
    return text;
}

std::vector<HyperboloidParameters> setsOf(const HyperboloidParameters& base,
                                          const std::vector<Sweep>& sweeps) {
    std::vector<HyperboloidParameters> sets{base};
    for (const Sweep& sweep : sweeps) {
        std::vector<HyperboloidParameters> product;
        product.reserve(sets.size() * sweep.values.size());
        for (const HyperboloidParameters& set : sets) {
            for (const double value : sweep.values) {
                product.push_back(set);
                sweep.parameter->setValueIn(product.back(), value);
            }
        }
        sets = std::move(product);
    }
    return sets;
}
