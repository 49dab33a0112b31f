#include "batch/Interruption.h"

namespace {

volatile std::sig_atomic_t noted = 0;

/** Notes the first signal; the second ends the program as if nobody handled it. */
void note(int signal) {
    if (noted != 0) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
    noted = 1;
}

} // namespace

Interruption::Interruption()
    : handlers{{{SIGINT, {}}, {SIGTERM, {}}}} {
    noted = 0;
    struct sigaction noting {};
    noting.sa_handler = note;
    // What is being written when the first signal comes goes on.
    noting.sa_flags = SA_RESTART;
    for (const Handler& handler : handlers) {
        // One waits until the other is noted.
        sigaddset(&noting.sa_mask, handler.signal);
    }
    for (Handler& handler : handlers) {
        sigaction(handler.signal, nullptr, &handler.previous);
        if (handler.previous.sa_handler != SIG_IGN) {
            sigaction(handler.signal, &noting, nullptr);
        }
    }
}

Interruption::~Interruption() {
    for (const Handler& handler : handlers) {
        sigaction(handler.signal, &handler.previous, nullptr);
    }
}

bool Interruption::isAskedFor() const {
    return noted != 0;
}
