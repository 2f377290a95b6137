#include "extension/actions/placing/Attributes.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;

bool isUnsupported()
{
    return errno == EOPNOTSUPP || errno == ENOSYS || errno == EINVAL;
}

bool copyAttributes(int from, int to, const struct stat& status, Unsupported unsupported)
{
    // Only the superuser may give a file away.
    struct stat made = {};
    if (::fstat(to, &made) == 0 && (made.st_uid != status.st_uid || made.st_gid != status.st_gid))
        static_cast<void>(::fchown(to, status.st_uid, status.st_gid));
    if (::fchmod(to, status.st_mode & 07777U) != 0)
        return false;
    const ssize_t size = ::flistxattr(from, nullptr, 0);
    if (size <= 0)
        return size == 0 || isUnsupported();
    std::string names(static_cast<std::size_t>(size), '\0');
    const ssize_t listed = ::flistxattr(from, names.data(), names.size());
    names.resize(static_cast<std::size_t>(std::max<ssize_t>(listed, 0)));
    for (std::string_view rest = names; !rest.empty();) {
        const std::string name(rest.substr(0, rest.find('\0')));
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
        const ssize_t length = ::fgetxattr(from, name.c_str(), nullptr, 0);
        std::string value(static_cast<std::size_t>(std::max<ssize_t>(length, 0)), '\0');
        if (length < 0 || ::fgetxattr(from, name.c_str(), value.data(), value.size()) != length)
            continue;
        const bool isUsers = name.starts_with("user.") || name.starts_with("system.posix_acl");
        // What is the system's own is not everybody's to set.
        if (::fsetxattr(to, name.c_str(), value.data(), value.size(), 0) != 0 && isUsers &&
            !(unsupported == Unsupported::AreLeft && isUnsupported()))
            return false;
    }
    return true;
}

bool syncFolder(const FileDescriptor& folder)
{
    const FileDescriptor readable(::openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return readable && (::fsync(readable.get()) == 0 || isUnsupported());
}

} // namespace MenuExtension
