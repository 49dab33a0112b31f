#pragma once

#include <cstddef>
#include <streambuf>
#include <string>

/**
 * One line on the terminal that is written over and over. Where standard error is no terminal, or
 * there is only one thing to do, nothing is shown.
 *
 * As long as it lives, whatever is said on std::cerr takes the line's place.
 */
class ProgressLine : private std::streambuf {
public:
    /** @param thingsToDo how many things there are to do */
    explicit ProgressLine(std::size_t thingsToDo);
    ~ProgressLine() override;
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /** Shows that a thing is being done, and which; the first has the number 0. */
    void show(std::size_t number, const std::string& what);

private:
    void clear();

    // What is said on std::cerr comes here.
    int_type overflow(int_type letter) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int sync() override;

    std::size_t count;
    bool isTerminal;
    bool isShown = false;
    std::streambuf* terminal;
};
