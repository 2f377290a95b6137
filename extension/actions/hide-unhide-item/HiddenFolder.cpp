#include "HiddenFolder.h"

#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/ReplaceFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;

namespace {

constexpr const char* temporaryName = ".hidden.orvik-menu";
constexpr std::size_t longestList = std::size_t{16} << 20U;
constexpr mode_t readableByAsManyAsAllowed = 0666;
constexpr mode_t rights = 0777;

/// What is no ordinary file is not waited for, and a link is not followed: it may lead anywhere.
FileDescriptor openList(const FileDescriptor& folder)
{
    return FileDescriptor(
        ::openat(folder.get(), HiddenFolder::listName, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
}

/// Gives the new file what the old one has, as far as the user may.
void takeRights(const FileDescriptor& from, const FileDescriptor& to)
{
    struct stat status = {};
    if (!from || ::fstat(from.get(), &status) != 0)
        return;
    if (::fchown(to.get(), status.st_uid, status.st_gid) != 0 && ::fchown(to.get(), ~uid_t{0}, status.st_gid) != 0)
        return;
    ::fchmod(to.get(), status.st_mode & rights);
}

} // namespace

std::optional<std::string> HiddenFolder::read() const
{
    const FileDescriptor file = openList(m_folder);
    if (!file)
        return errno == ENOENT ? std::optional(std::string()) : std::nullopt;
    struct stat status = {};
    if (::fstat(file.get(), &status) != 0)
        return std::nullopt;
    if (!S_ISREG(status.st_mode)) {
        errno = EINVAL;
        return std::nullopt;
    }
    std::string text;
    std::array<char, std::size_t{64} << 10U> buffer{};
    for (;;) {
        const ssize_t count = ::read(file.get(), buffer.data(), buffer.size());
        if (count == 0)
            return text;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        text.append(buffer.data(), static_cast<std::size_t>(count));
        if (text.size() > longestList) {
            errno = EFBIG;
            return std::nullopt;
        }
    }
}

bool HiddenFolder::replace(const std::string& text) const
{
    const int folder = m_folder.get();
    if (text.empty())
        return ::unlinkat(folder, listName, 0) == 0 || errno == ENOENT;
    // Left by one that was killed: nobody else is at it.
    ::unlinkat(folder, temporaryName, 0);
    FileDescriptor file(::openat(folder, temporaryName, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                                 readableByAsManyAsAllowed));
    if (!file)
        return false;
    takeRights(openList(m_folder), file);
    LinuxDesktop::FileOperations files;
    if (writeAll(files, file.get(), text) && files.syncFile(file.get()) == 0 && file.close() &&
        ::renameat(folder, temporaryName, folder, listName) == 0) {
        // It is in its place, on disk soon.
        static_cast<void>(files.syncFolder(folder));
        return true;
    }
    const int error = errno;
    ::unlinkat(folder, temporaryName, 0);
    errno = error;
    return false;
}

} // namespace MenuExtension
