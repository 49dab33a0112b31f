#include "batch/BatchRun.h"
#include "batch/CommandLine.h"
#include "batch/ExitCode.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    try {
        const CommandLine::Result asked = CommandLine::read(argc, argv);
        return asked.options ? BatchRun::run(*asked.options, argv[0]) : asked.exitCode;
    } catch (const std::exception& error) {
        // No memory, for example.
        std::cerr << "Given up: " << error.what() << "\n";
        return ExitCode::incomplete;
    }
}
