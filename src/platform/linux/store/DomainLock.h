#pragma once

#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/Result.h"

#include <chrono>
#include <string>
#include <variant>

namespace LinuxDesktop {

/// The lock that every writer of a domain takes: flock() on a file that is made once and never removed. One
/// thread at a time.
class DomainLock {
public:
    using Clock = std::chrono::steady_clock;

    /// No writer waits longer than this.
    static constexpr std::chrono::seconds longestWait{2};

    /// Keeps the lock as long as it lives.
    class Hold {
    public:
        Hold(DomainLock& lock, FileDescriptor file) : m_lock(lock), m_file(std::move(file)) {}
        ~Hold()
        {
            if (m_file)
                m_lock.m_released = Clock::now();
        }
        Hold(Hold&&) = default;
        Hold& operator=(Hold&&) = delete;

    private:
        DomainLock& m_lock;
        FileDescriptor m_file;
    };

    /// Somebody else has kept the lock until the deadline.
    struct Busy {};

    /// A failure: the lock file cannot be opened or locked.
    using Attempt = std::variant<Hold, Busy, Failure>;

    DomainLock(FileOperations& files, std::string path) : m_files(files), m_path(std::move(path)) {}

    /// Tries at least once.
    [[nodiscard]] Attempt acquire(Clock::time_point deadline);
    [[nodiscard]] const std::string& path() const { return m_path; }

private:
    void giveOthersATurn();

    FileOperations& m_files;
    std::string m_path;
    Clock::time_point m_released;
    /// Since when it was taken again right after each release.
    Clock::time_point m_streakBegan;
};

} // namespace LinuxDesktop
