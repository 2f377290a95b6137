#include "platform/linux/chooser/FolderWatch.h"

#include <QSocketNotifier>

#include <array>
#include <sys/inotify.h>
#include <unistd.h>

namespace LinuxDesktop {

FolderWatch::FolderWatch(QObject* parent) : QObject(parent), m_queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (m_queue < 0)
        return;
    m_notifier = new QSocketNotifier(m_queue, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &FolderWatch::drain);
}

FolderWatch::~FolderWatch()
{
    if (m_queue < 0)
        return;
    m_notifier->setEnabled(false);
    ::close(m_queue);
}

void FolderWatch::setFolder(const std::string& folder)
{
    if (m_queue < 0)
        return;
    // The same folder keeps its watch's number when it is asked for again, so the old one goes first.
    if (m_watch >= 0)
        ::inotify_rm_watch(m_queue, m_watch);
    constexpr std::uint32_t changes = IN_CREATE | IN_DELETE | IN_MOVE | IN_ATTRIB | IN_CLOSE_WRITE | IN_DELETE_SELF |
                                      IN_MOVE_SELF | IN_ONLYDIR | IN_EXCL_UNLINK;
    m_watch = ::inotify_add_watch(m_queue, folder.c_str(), changes);
}

void FolderWatch::drain()
{
    alignas(inotify_event) std::array<char, 16384> events;
    bool ofThisFolder = false;
    for (ssize_t length = 0; (length = ::read(m_queue, events.data(), events.size())) > 0;) {
        for (ssize_t at = 0; at < length;) {
            const auto* event = reinterpret_cast<const inotify_event*>(events.data() + at);
            // A lost-events report carries no watch.
            ofThisFolder = ofThisFolder || (event->wd == m_watch && !(event->mask & IN_IGNORED)) ||
                           (event->mask & IN_Q_OVERFLOW);
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
    }
    if (ofThisFolder)
        emit changed();
}

} // namespace LinuxDesktop
