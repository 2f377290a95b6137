#include "platform/linux/store/DomainLock.h"

#include "platform/linux/store/ReplaceFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace LinuxDesktop {

namespace {

constexpr std::chrono::microseconds firstPause{50};
constexpr std::chrono::microseconds longestPause{1000};
constexpr std::chrono::milliseconds longestStreak{50};

bool isStillAt(int descriptor, const std::string& path)
{
    struct stat held {};
    struct stat found {};
    return ::fstat(descriptor, &held) == 0 && ::stat(path.c_str(), &found) == 0 && held.st_dev == found.st_dev &&
           held.st_ino == found.st_ino;
}

} // namespace

DomainLock::Attempt DomainLock::acquire(Clock::time_point deadline)
{
    giveOthersATurn();
    FileDescriptor file;
    for (auto pause = firstPause;; pause = std::min(pause * 2, longestPause)) {
        if (!file)
            file = m_files.open(m_path, O_RDWR | O_CREAT, 0600);
        if (!file)
            return systemFailure("could not open the lock", m_path);
        if (::flock(file.get(), LOCK_EX | LOCK_NB) == 0) {
            if (isStillAt(file.get(), m_path))
                return Hold(*this, std::move(file));
            // Locked, but worthless: the file was removed meanwhile, and the next writer makes another.
            file.close();
        } else if (errno != EWOULDBLOCK && errno != EINTR) {
            return systemFailure("could not take the lock", m_path);
        }
        if (Clock::now() >= deadline)
            return Busy{};
        std::this_thread::sleep_for(pause);
    }
}

/// Whoever writes without a break would win nearly every time against those who look once in a while; so now and
/// then it leaves the lock alone for longer than they pause.
void DomainLock::giveOthersATurn()
{
    const auto now = Clock::now();
    if (now - m_released > longestPause) {
        m_streakBegan = now;
    } else if (now - m_streakBegan > longestStreak) {
        std::this_thread::sleep_for(longestPause + firstPause);
        m_streakBegan = Clock::now();
    }
}

} // namespace LinuxDesktop
