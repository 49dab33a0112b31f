#pragma once

#include <array>
#include <csignal>

/**
 * Lets the user end the program between two sets, so that no file is left half made: as long as it
 * lives, the first SIGINT or SIGTERM is only noted. The second, of either kind, ends the program at
 * once. A signal that the program was started to ignore, as nohup does, stays ignored.
 */
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /** Whether a signal has come. */
    bool isAskedFor() const;

private:
    struct Handler {
        int signal;
        struct sigaction previous;
    };
    std::array<Handler, 2> handlers;
};
