#include "platform/linux/program/TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <pthread.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace LinuxDesktop {

namespace {

sigset_t terminationSignals()
{
    sigset_t endings;
    sigemptyset(&endings);
    sigaddset(&endings, SIGTERM);
    sigaddset(&endings, SIGINT);
    sigaddset(&endings, SIGHUP);
    return endings;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    std::signal(SIGPIPE, SIG_IGN);
    const sigset_t endings = terminationSignals();
    m_descriptor = signalfd(-1, &endings, SFD_CLOEXEC | SFD_NONBLOCK);
    if (m_descriptor >= 0)
        pthread_sigmask(SIG_BLOCK, &endings, nullptr);
}

TerminationSignals::~TerminationSignals()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

void TerminationSignals::whenAsked(std::function<void()> asked)
{
    if (m_descriptor < 0)
        return;
    // Two at once on a descriptor are one too many for the toolkit.
    m_notifier.reset();
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [descriptor = m_descriptor, asked = std::move(asked)] {
                         signalfd_siginfo received{};
                         while (read(descriptor, &received, sizeof received) > 0)
                             asked();
                     });
}

} // namespace LinuxDesktop
