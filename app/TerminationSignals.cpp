#include "app/TerminationSignals.h"

#include <QSocketNotifier>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> handledSignals{SIGTERM, SIGINT, SIGHUP};

/** Where the handler writes; -1 while there is nobody to tell. */
volatile std::sig_atomic_t writingEnd = -1;

void handleSignal(int /*signal*/) {
    const char byte = 0;
    // Nothing can be done about a failure here.
    [[maybe_unused]] const ssize_t written = write(writingEnd, &byte, sizeof byte);
}

void setHandler(void (*handler)(int)) {
    for (const int number : handledSignals) {
        struct sigaction action {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        sigaction(number, &action, nullptr);
    }
}

} // namespace

TerminationSignals::TerminationSignals()
    : sockets{-1, -1} {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) == 0) {
        writingEnd = sockets[0];
        setHandler(handleSignal);
    }
}

TerminationSignals::~TerminationSignals() {
    setHandler(SIG_DFL);
    notifier.reset();
    for (const int end : sockets) {
        close(end);
    }
}

void TerminationSignals::deliver() {
    notifier = std::make_unique<QSocketNotifier>(sockets[1], QSocketNotifier::Read);
    connect(notifier.get(), SIGNAL(activated(int)), this, SLOT(readSignal()));
}

void TerminationSignals::readSignal() {
    char byte = 0;
    if (read(sockets[1], &byte, sizeof byte) > 0) {
        emit received();
    }
}
