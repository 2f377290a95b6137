#include "platform/linux/store/DomainLock.h"

#include "platform/linux/store/ReplaceFile.h"
#include "platform/linux/system/FileStamp.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <sys/file.h>
#include <sys/inotify.h>
#include <thread>
#include <unistd.h>

namespace LinuxDesktop {

namespace {

constexpr std::chrono::microseconds firstPause{50};
constexpr std::chrono::microseconds longestPause{1000};
constexpr std::chrono::milliseconds longestSleep{100};
constexpr std::chrono::milliseconds longestStreak{50};

bool isStillAt(int descriptor, const std::string& path)
{
    return FileStamp::of(path) == FileStamp::of(descriptor);
}

/// Tells when somebody closes a lock file, which lets go of the lock.
class ReleaseWatch {
public:
    explicit ReleaseWatch(const std::string& path) : m_inotify(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
    {
        ::inotify_add_watch(m_inotify.get(), path.c_str(), IN_CLOSE);
    }

    /// Not for long where nothing is told: of a lock that is given up in another way, or on another machine.
    void sleep(DomainLock::Clock::duration longest) const
    {
        const auto most = std::chrono::ceil<std::chrono::milliseconds>(
            std::min<DomainLock::Clock::duration>(longest, longestSleep));
        pollfd closed{m_inotify.get(), POLLIN, 0};
        ::poll(&closed, 1, static_cast<int>(most.count()));
        std::array<char, 4096> told{};
        while (::read(m_inotify.get(), told.data(), told.size()) > 0) {
        }
    }

private:
    FileDescriptor m_inotify;
};

} // namespace

DomainLock::Attempt DomainLock::acquire(Clock::time_point deadline)
{
    giveOthersATurn();
    FileDescriptor file;
    std::optional<ReleaseWatch> watch;
    for (auto pause = firstPause;;) {
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
        const auto now = Clock::now();
        if (now >= deadline)
            return Busy{};
        // Most hold it for less than it takes to be told.
        if (pause <= longestPause) {
            std::this_thread::sleep_for(pause);
            pause *= 2;
        } else if (watch) {
            watch->sleep(deadline - now);
        } else {
            watch.emplace(m_path);
        }
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
