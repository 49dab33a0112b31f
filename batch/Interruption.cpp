#include "batch/Interruption.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t noted = 0;

void note(int signal) {
    noted = 1;
    std::signal(signal, SIG_DFL);
}

} // namespace

Interruption::Interruption() {
    std::signal(SIGINT, note);
    std::signal(SIGTERM, note);
}

Interruption::~Interruption() {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool Interruption::isAskedFor() const {
    return noted != 0;
}
