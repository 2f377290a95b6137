#include "extension/actions/support/FolderLock.h"

#include <cerrno>
#include <chrono>
#include <sys/file.h>
#include <thread>

namespace MenuExtension {

bool lockFolder(const LinuxDesktop::FileDescriptor& folder)
{
    using namespace std::chrono_literals;
    using Clock = std::chrono::steady_clock;
    for (const auto deadline = Clock::now() + 10s; ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0;) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return true;
        if (Clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(2ms);
    }
    return true;
}

} // namespace MenuExtension
