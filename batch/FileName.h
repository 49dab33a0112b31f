#pragma once

#include "hyperboloid/HyperboloidParameters.h"

#include <string>
#include <vector>

/** Names of files in which a parameter's name in braces, such as {K13}, stands for its value. */
namespace FileName {

/**
 * The names in braces, in the order of the text.
 *
 * Throws std::invalid_argument, saying what is wrong, for a name that is no parameter's.
 */
std::vector<const HyperboloidParameter*> parametersIn(const std::string& pattern);

/** The name for a set. The pattern must be one that parametersIn() takes. */
std::string of(const std::string& pattern, const HyperboloidParameters& set);

} // namespace FileName
