#pragma once

#include "batch/BatchOptions.h"

#include <string>

/** Commands that make one set of a sweep each, for other programs to run in parallel. */
namespace ListedCommand {

/**
 * The command that makes a set as these options do, in words that a shell reads.
 *
 * @param program how the program is called
 */
std::string of(const BatchOptions& options, const HyperboloidParameters& set,
               const std::string& program);

} // namespace ListedCommand
