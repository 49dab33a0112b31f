#pragma once

#include "hyperboloid/HyperboloidParameters.h"

#include <string>

/** Why a set of parameters cannot be had, in words. */
namespace Refusal {

/** For example "K1 = 0 is not in 0.01 to 100". */
std::string outOfRange(const HyperboloidParameter& parameter, double value);

/**
 * The broken condition with its formula and its numbers; empty when all conditions hold. For
 * example "K1 ≤ K2 does not hold: K1 = 2, K2 = 1".
 */
std::string brokenCondition(const HyperboloidParameters& set);

} // namespace Refusal
