#include "batch/BatchRun.h"
#include "batch/CommandLine.h"

int main(int argc, char** argv) {
    const CommandLine::Result asked = CommandLine::read(argc, argv);
    return asked.options ? BatchRun::run(*asked.options, argv[0]) : asked.exitCode;
}
