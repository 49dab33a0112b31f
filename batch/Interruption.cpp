#include "batch/Interruption.h"

namespace {

volatile std::sig_atomic_t noted = 0;

void note(int /*signal*/) {
    noted = 1;
}

} // namespace

Interruption::Interruption()
    : handlers{{{SIGINT, {}}, {SIGTERM, {}}}} {
    noted = 0;
    struct sigaction noting {};
    noting.sa_handler = note;
    // The second signal ends the program; what is being written when the first comes goes on.
    noting.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
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
