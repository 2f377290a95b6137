#include "platform/linux/TerminationSignals.h"

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

TerminationSignals::TerminationSignals(std::function<void()> asked) : m_asked(std::move(asked))
{
    const sigset_t endings = terminationSignals();
    pthread_sigmask(SIG_BLOCK, &endings, nullptr);
    m_descriptor = signalfd(-1, &endings, SFD_CLOEXEC | SFD_NONBLOCK);
    if (m_descriptor < 0) {
        pthread_sigmask(SIG_UNBLOCK, &endings, nullptr);
        return;
    }
    m_notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier, &QSocketNotifier::activated, m_notifier, [this] {
        signalfd_siginfo received{};
        while (read(m_descriptor, &received, sizeof received) > 0)
            m_asked();
    });
}

TerminationSignals::~TerminationSignals()
{
    delete m_notifier;
    if (m_descriptor >= 0)
        close(m_descriptor);
}

} // namespace LinuxDesktop
