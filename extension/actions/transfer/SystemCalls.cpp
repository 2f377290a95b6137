#include "extension/actions/transfer/SystemCalls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace MenuExtension::Transfers {

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

int flagsFor(const char* name)
{
    return AT_SYMLINK_NOFOLLOW | (*name == '\0' ? AT_EMPTY_PATH : 0);
}

} // namespace

LinuxDesktop::FileDescriptor SystemCalls::open(int folder, const char* name, int flags, mode_t mode)
{
    const int safe = flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW;
    return LinuxDesktop::FileDescriptor(
        untilNotInterrupted([&] { return ::openat(folder, *name == '\0' ? "." : name, safe, mode); }));
}

int SystemCalls::status(int folder, const char* name, struct stat& status)
{
    return ::fstatat(folder, name, &status, flagsFor(name));
}

int SystemCalls::fileSystem(int file, struct statfs& status)
{
    return untilNotInterrupted([&] { return ::fstatfs(file, &status); });
}

std::uint64_t SystemCalls::mount(int file)
{
    struct statx status = {};
    return ::statx(file, "", AT_EMPTY_PATH, STATX_MNT_ID, &status) == 0 ? status.stx_mnt_id : 0;
}

const dirent* SystemCalls::nextEntry(DIR* folder)
{
    errno = 0;
    return ::readdir(folder);
}

ssize_t SystemCalls::read(int file, void* bytes, std::size_t count, off_t at)
{
    return untilNotInterrupted([&] { return ::pread(file, bytes, count, at); });
}

ssize_t SystemCalls::write(int file, const void* bytes, std::size_t count, off_t at)
{
    return untilNotInterrupted([&] { return ::pwrite(file, bytes, count, at); });
}

ssize_t SystemCalls::copyRange(int from, int to, off_t at, std::size_t count)
{
    return untilNotInterrupted([&] {
        loff_t source = at;
        loff_t target = at;
        return ::copy_file_range(from, &source, to, &target, count, 0);
    });
}

int SystemCalls::clone(int from, int to)
{
    return untilNotInterrupted([&] { return ::ioctl(to, FICLONE, from); });
}

off_t SystemCalls::seek(int file, off_t at, int whence)
{
    return ::lseek(file, at, whence);
}

int SystemCalls::setLength(int file, off_t length)
{
    return untilNotInterrupted([&] { return ::ftruncate(file, length); });
}

int SystemCalls::makeFolder(int folder, const char* name, mode_t mode)
{
    return ::mkdirat(folder, name, mode);
}

int SystemCalls::makeNode(int folder, const char* name, mode_t mode)
{
    return ::mknodat(folder, name, mode, 0);
}

int SystemCalls::makeSymbolicLink(const char* destination, int folder, const char* name)
{
    return ::symlinkat(destination, folder, name);
}

ssize_t SystemCalls::readSymbolicLink(int folder, const char* name, char* destination, std::size_t size)
{
    return ::readlinkat(folder, name, destination, size);
}

int SystemCalls::link(int from, const char* name, int to, const char* newName)
{
    return ::linkat(from, name, to, newName, 0);
}

int SystemCalls::rename(int from, const char* name, int to, const char* newName, unsigned flags)
{
    return ::renameat2(from, name, to, newName, flags);
}

int SystemCalls::remove(int folder, const char* name, int flags)
{
    return ::unlinkat(folder, name, flags);
}

int SystemCalls::setOwner(int folder, const char* name, uid_t user, gid_t group)
{
    return ::fchownat(folder, name, user, group, flagsFor(name));
}

int SystemCalls::setMode(int folder, const char* name, mode_t mode)
{
    return *name == '\0' ? ::fchmod(folder, mode) : ::fchmodat(folder, name, mode, AT_SYMLINK_NOFOLLOW);
}

int SystemCalls::setTimes(int folder, const char* name, const std::array<timespec, 2>& times)
{
    return *name == '\0' ? ::futimens(folder, times.data())
                         : ::utimensat(folder, name, times.data(), AT_SYMLINK_NOFOLLOW);
}

ssize_t SystemCalls::listAttributes(int file, char* names, std::size_t size)
{
    return ::flistxattr(file, names, size);
}

ssize_t SystemCalls::attribute(int file, const char* name, void* value, std::size_t size)
{
    return ::fgetxattr(file, name, value, size);
}

int SystemCalls::setAttribute(int file, const char* name, const void* value, std::size_t size)
{
    return ::fsetxattr(file, name, value, size, 0);
}

int SystemCalls::removeAttribute(int file, const char* name)
{
    return ::fremovexattr(file, name);
}

int SystemCalls::flush(int file)
{
    const int result = untilNotInterrupted([&] { return ::fsync(file); });
    return result != 0 && (errno == EINVAL || errno == ENOTSUP) ? 0 : result;
}

int SystemCalls::flushFileSystem(int file)
{
    return untilNotInterrupted([&] { return ::syncfs(file); });
}

} // namespace MenuExtension::Transfers
