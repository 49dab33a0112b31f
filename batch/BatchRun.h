#pragma once

#include "batch/BatchOptions.h"

#include <string>

/** What the program does with its options. */
namespace BatchRun {

/**
 * Makes all that is asked for, or lists the commands that make it. A single set that cannot be had
 * is refused; of several, it is told at the end which could not be made, and why. What cannot be
 * made hinders nothing else; an interruption ends the walk through the sets, and it is told how
 * many of them are not made.
 *
 * @param program how the program was called, for the listed commands
 * @return what the program ends with: 0, or one of ExitCode
 */
int run(const BatchOptions& options, const std::string& program);

} // namespace BatchRun
