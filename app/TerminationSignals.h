#pragma once

#include <QObject>
#include <array>
#include <memory>

class QSocketNotifier;

/**
 * Turns SIGTERM, SIGINT and SIGHUP into an event: the program then ends as if its window was
 * closed.
 *
 * A signal handler may do next to nothing, so it writes into a socket that the event loop reads.
 * A signal that comes before deliver() is kept until then. There is one such object in a process.
 */
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

    /** From now on received() is emitted, also for a signal that has come already. */
    void deliver();

signals:
    void received();

private slots:
    void readSignal();

private:
    /** What the signal handler writes to, and what the event loop reads from. */
    std::array<int, 2> sockets;
    std::unique_ptr<QSocketNotifier> notifier;
};
