#pragma once

#include "batch/BatchOptions.h"

#include <string>

/** What the program does with its options. */
namespace BatchRun {

/** What ends the program when something could not be made; all else has been made. */
constexpr int incomplete = 1;

/**
 * Makes all that is asked for, or lists the commands that make it. A single set that cannot be had
 * is refused; of several, it is told at the end which could not be made, and why.
 *
 * @param program how the program was called, for the listed commands
 * @return what the program ends with: 0, incomplete, or CommandLine::refused
 */
int run(const BatchOptions& options, const std::string& program);

} // namespace BatchRun
