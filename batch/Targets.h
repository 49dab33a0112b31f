#pragma once

#include "export/ByteTarget.h"

#include <memory>
#include <string>

/** Where the program writes to. */
namespace Targets {

/** The name of standard output. */
constexpr const char* standardOutput = "-";

/** Opens a file, or standard output. */
std::unique_ptr<ByteTarget> open(const std::string& fileName);

/**
 * Makes what was written to a target count; what hinders it is told on standard error.
 *
 * @return what the program ends with: 0 or ExitCode::incomplete
 */
int close(ByteTarget& target, const std::string& fileName);

/** Writes a text, and nothing else, as above. */
int write(const std::string& text, const std::string& fileName);

} // namespace Targets
