#pragma once

#include "batch/BatchOptions.h"

/** Options that are right by themselves and cannot be had together. */
namespace Contradictions {

/** Throws std::invalid_argument, saying what is wrong, when there are any. */
void refuse(const BatchOptions& options);

} // namespace Contradictions
