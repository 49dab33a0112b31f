#include "batch/ProgressLine.h"

#include <iostream>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

/** What the terminal shows in one line of a text; all of it where the width is not known. */
std::string cutToTheWidth(const std::string& text) {
    winsize size{};
    const bool isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    // In the last column some terminals go on to the next line.
    return isKnown ? text.substr(0, size.ws_col - 1U) : text;
}

} // namespace

ProgressLine::ProgressLine(std::size_t thingsToDo)
    : count(thingsToDo)
    , isTerminal(isatty(STDERR_FILENO) != 0)
    , terminal(std::cerr.rdbuf(this)) {}

ProgressLine::~ProgressLine() {
    erase();
    std::cerr.rdbuf(terminal);
}

void ProgressLine::show(std::size_t number, const std::string& what) {
    erase();
    if (count > 1) {
        untold = std::to_string(number + 1) + " of " + std::to_string(count) + ": " + what;
    }
    if (isTerminal && !untold.empty()) {
        put(cutToTheWidth(untold));
        isShown = true;
    }
}

void ProgressLine::erase() {
    if (isShown) {
        put("\r\033[K");
        isShown = false;
    }
}

void ProgressLine::makeRoom() {
    erase();
    if (!untold.empty()) {
        put(untold + "\n");
        untold.clear();
    }
}

void ProgressLine::put(const std::string& text) {
    terminal->sputn(text.data(), static_cast<std::streamsize>(text.size()));
    terminal->pubsync();
}

ProgressLine::int_type ProgressLine::overflow(int_type letter) {
    makeRoom();
    return terminal->sputc(traits_type::to_char_type(letter));
}

std::streamsize ProgressLine::xsputn(const char* text, std::streamsize size) {
    makeRoom();
    return terminal->sputn(text, size);
}

int ProgressLine::sync() {
    return terminal->pubsync();
}
