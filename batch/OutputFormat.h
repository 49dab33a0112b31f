#pragma once

#include "batch/BatchOptions.h"

/** How a file is written. */
enum class Format { text, postScript, png, openInventor, vrml };

namespace OutputFormat {

/** Whether an output goes to standard output: "-", or "-" and an ending. */
bool isStandardOutput(const Output& output);

/**
 * The format of an output. Images are told apart by the ending .eps or .png, scenes by .iv or .wrl;
 * "-" alone means the first of the two. Texts may have any name.
 *
 * Throws std::invalid_argument, saying what is wrong, for another ending.
 */
Format of(const Output& output);

} // namespace OutputFormat
