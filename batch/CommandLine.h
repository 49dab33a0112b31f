#pragma once

#include "batch/BatchOptions.h"

#include <optional>

/**
 * The command line of the program: its options with their help, and what they mean.
 *
 * Names, ranges, start values and meanings of parameters are those of HyperboloidParameters::all()
 * and HelixParameter::all().
 */
namespace CommandLine {

/** The options, or none and what the program ends with. */
struct Result {
    std::optional<BatchOptions> options;
    int exitCode = 0;
};

/**
 * Reads the arguments of main, and the file of options that they may name. What is wrong with them
 * is told on standard error, help on standard output; a file of options is written when they ask
 * for one.
 */
Result read(int argc, const char* const* argv);

} // namespace CommandLine
