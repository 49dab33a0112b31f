#include "batch/ProgressLine.h"

#include <iostream>
#include <string_view>
#include <unistd.h>

ProgressLine::ProgressLine(std::size_t thingsToDo)
    : count(thingsToDo)
    , isTerminal(count > 1 && isatty(STDERR_FILENO) != 0)
    , terminal(std::cerr.rdbuf(this)) {}

ProgressLine::~ProgressLine() {
    clear();
    std::cerr.rdbuf(terminal);
}

void ProgressLine::show(std::size_t number, const std::string& what) {
    if (isTerminal) {
        std::cerr << number + 1 << " of " << count << ": " << what << std::flush;
        isShown = true;
    }
}

void ProgressLine::clear() {
    if (isShown) {
        constexpr std::string_view toItsStartAndErase = "\r\033[K";
        terminal->sputn(toItsStartAndErase.data(), toItsStartAndErase.size());
        terminal->pubsync();
        isShown = false;
    }
}

ProgressLine::int_type ProgressLine::overflow(int_type letter) {
    clear();
    return terminal->sputc(traits_type::to_char_type(letter));
}

std::streamsize ProgressLine::xsputn(const char* text, std::streamsize size) {
    clear();
    return terminal->sputn(text, size);
}

int ProgressLine::sync() {
    return terminal->pubsync();
}
