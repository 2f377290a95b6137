#include "platform/linux/chooser/FolderWatch.h"

#include <sys/inotify.h>

namespace LinuxDesktop {

FolderWatch::FolderWatch(QObject* parent) : QObject(parent)
{
    if (!m_queue)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_queue.descriptor(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &FolderWatch::drain);
}

void FolderWatch::setFolder(const std::string& folder)
{
    // The same folder keeps its watch's number when it is asked for again, so the old one goes first.
    if (m_watch >= 0)
        m_queue.remove(m_watch);
    constexpr std::uint32_t changes = IN_CREATE | IN_DELETE | IN_MOVE | IN_ATTRIB | IN_CLOSE_WRITE | IN_DELETE_SELF |
                                      IN_MOVE_SELF | IN_ONLYDIR | IN_EXCL_UNLINK;
    m_watch = m_queue.add(folder, changes);
}

void FolderWatch::drain()
{
    bool ofThisFolder = false;
    m_queue.read([&](const Inotify::Event& event) {
        // A lost-events report carries no watch.
        ofThisFolder =
            ofThisFolder || (event.watch == m_watch && !(event.what & IN_IGNORED)) || (event.what & IN_Q_OVERFLOW);
    });
    if (ofThisFolder)
        emit changed();
}

} // namespace LinuxDesktop
