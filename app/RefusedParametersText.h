#pragma once

#include <QString>

struct HyperboloidParameters;

/** What a user is told about refused parameters, to type them again. */
namespace RefusedParametersText {

/**
 * K1, K2, K3, K13, K23 and all other values that were changed, and the condition that they break.
 *
 * @param kept the values in force
 */
QString of(const HyperboloidParameters& refused, const HyperboloidParameters& kept);

} // namespace RefusedParametersText
