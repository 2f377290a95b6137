#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace LinuxDesktop {

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into a call on the main thread, so that
/// a log-out ends the program as its Quit command does. SIGPIPE is ignored from then on, so a line to a console that
/// has gone ends nothing. Make it before any thread is started, the toolkit's included: a thread that does not know
/// of it would end the process at once. Main thread.
class TerminationSignals {
public:
    TerminationSignals();
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

    /// Calls `asked`, and no other, for each signal from now on, from the event loop; those that came before wait for
    /// it. Needs the QCoreApplication.
    void whenAsked(std::function<void()> asked);

private:
    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace LinuxDesktop
