#include "platform/linux/store/FileOperations.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace LinuxDesktop {

namespace {

template<class Call>
auto untilNotInterrupted(Call call)
{
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR)
            return result;
    }
}

} // namespace

FileDescriptor FileOperations::open(const std::string& path, int flags, mode_t mode)
{
    const int safe = flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    FileDescriptor opened(untilNotInterrupted([&] { return ::open(path.c_str(), safe, mode); }));
    if (opened && opened.get() <= STDERR_FILENO)
        return FileDescriptor(::fcntl(opened.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    return opened;
}

ssize_t FileOperations::write(int descriptor, const void* bytes, std::size_t count)
{
    return untilNotInterrupted([&] { return ::write(descriptor, bytes, count); });
}

int FileOperations::syncFile(int descriptor)
{
    return untilNotInterrupted([&] { return ::fsync(descriptor); });
}

int FileOperations::syncFolder(int descriptor)
{
    const int result = untilNotInterrupted([&] { return ::fsync(descriptor); });
    return result != 0 && (errno == EINVAL || errno == ENOTSUP) ? 0 : result;
}

int FileOperations::rename(const std::string& from, const std::string& to)
{
    return std::rename(from.c_str(), to.c_str());
}

int FileOperations::link(const std::string& existing, const std::string& name)
{
    return ::link(existing.c_str(), name.c_str());
}

int FileOperations::unlink(const std::string& path)
{
    return ::unlink(path.c_str());
}

int FileOperations::makeFolder(const std::string& path, mode_t mode)
{
    return ::mkdir(path.c_str(), mode);
}

} // namespace LinuxDesktop
