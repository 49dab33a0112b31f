#pragma once

#include "batch/BatchOptions.h"

/** The files that a call writes, of all its sets. */
namespace FileTargets {

/**
 * Throws std::invalid_argument, naming both, when two outputs lead to one file: names of different
 * sets that become the same with their values, or different ways to a file, such as "a.txt" and
 * "./a.txt" or a link to it.
 */
void refuseShared(const BatchOptions& options);

} // namespace FileTargets
