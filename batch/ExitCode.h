#pragma once

/** What the program ends with when it does not end with 0. */
namespace ExitCode {

/** Something could not be made. */
constexpr int incomplete = 1;
/** The program cannot do what it has been asked for: nothing has been made. */
constexpr int refused = 2;

} // namespace ExitCode
