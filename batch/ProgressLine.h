#pragma once

#include <cstddef>
#include <streambuf>
#include <string>

/**
 * One line on the terminal that is written over and over, cut to the terminal's width. Where
 * standard error is no terminal, or there is only one thing to do, nothing is shown.
 *
 * As long as it lives, the first words on std::cerr about one of several things, on a terminal or
 * not, stand under the whole line that says which.
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
    void erase();
    /** Gives the line's place to words. */
    void makeRoom();
    void put(const std::string& text);

    // What is said on std::cerr comes here.
    int_type overflow(int_type letter) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int sync() override;

    std::size_t count;
    bool isTerminal;
    bool isShown = false;
    /** The line of the thing that is being done, as long as there are no words about it. */
    std::string untold;
    std::streambuf* terminal;
};
