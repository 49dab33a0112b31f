#include "export/StandardOutput.h"

#include <unistd.h>

void StandardOutput::write(const char* text, std::size_t size) {
    writeTo(STDOUT_FILENO, text, size);
}
