#include "export/StandardOutput.h"

#include <csignal>
#include <unistd.h>

StandardOutput::StandardOutput()
    : previousHandler(std::signal(SIGPIPE, SIG_IGN)) {}

StandardOutput::~StandardOutput() {
    std::signal(SIGPIPE, previousHandler);
}

void StandardOutput::write(const char* text, std::size_t size) {
    writeTo(STDOUT_FILENO, text, size);
}
