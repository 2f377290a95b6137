#pragma once

#include <functional>

class QSocketNotifier;

namespace LinuxDesktop {

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into a call on the main thread, so that
/// a log-out ends the program as its Quit command does. Make it before any thread is started. Main thread.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> asked);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    int m_descriptor;
    std::function<void()> m_asked;
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace LinuxDesktop
