#include "platform/linux/chooser/SmallFile.h"

#include "platform/linux/system/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace LinuxDesktop {

std::optional<std::string> readSmallFile(const std::string& path, std::size_t limit)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::string content;
    std::array<char, 4096> piece = {};
    while (content.size() < limit) {
        const ssize_t count = ::read(file.get(), piece.data(), std::min(piece.size(), limit - content.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        content.append(piece.data(), static_cast<std::size_t>(count));
    }
    return content;
}

} // namespace LinuxDesktop
