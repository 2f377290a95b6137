#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace LinuxDesktop {

/// The system's queue of what happens to files and folders, inotify(7). One thread at a time.
class Inotify {
public:
    struct Event {
        /// Negative where events were lost.
        int watch;
        std::uint32_t what;
        /// In a watched folder; empty for what happens to the watched file or folder itself.
        std::string_view name;
    };

    /// Without a queue, and with errno, where the system has none to give.
    Inotify();

    [[nodiscard]] explicit operator bool() const { return bool(m_queue); }
    /// Readable when something has happened; negative without a queue.
    [[nodiscard]] int descriptor() const { return m_queue.get(); }

    /// The watch's number, the same for the same file; negative, with errno, where it cannot be watched.
    int add(const std::string& path, std::uint32_t events);
    void remove(int watch);
    /// Takes what has happened, without waiting for more.
    void read(const std::function<void(const Event&)>& happened);

private:
    FileDescriptor m_queue;
};

} // namespace LinuxDesktop
