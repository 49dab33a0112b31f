#pragma once

/** What the program tells about itself on the command line. */
namespace ProgramInformation {

/**
 * Answers --help and --version on standard output; needs neither a display nor plug-ins.
 *
 * All other arguments are left to Qt. To be called before the application object exists.
 *
 * @return whether one of the two has been asked for and answered: the program is to end then
 */
bool answer(int argc, char** argv);

} // namespace ProgramInformation
