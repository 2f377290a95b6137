#include "extension/actions/support/Beneath.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;

namespace {

FileDescriptor openFolder(const std::string& folder)
{
    return FileDescriptor(::open(folder.empty() ? "/" : folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

/// The rest of a path that lies in `folder`, without slashes around it.
std::string_view restOf(std::string_view path, std::string_view folder)
{
    path.remove_prefix(std::min(folder.size(), path.size()));
    path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
    return path.substr(0, path.find_last_not_of('/') + 1);
}

/// Opens one name, which is no link.
FileDescriptor openName(const FileDescriptor& folder, const std::string& name, int flags)
{
    FileDescriptor opened(::openat(folder.get(), name.c_str(), flags | O_NOFOLLOW | O_CLOEXEC));
    struct stat status = {};
    // So opened a link is a file like any other.
    if (opened && (flags & O_PATH) != 0 && (::fstat(opened.get(), &status) != 0 || S_ISLNK(status.st_mode))) {
        errno = ELOOP;
        return {};
    }
    return opened;
}

} // namespace

FileDescriptor openBeneath(const std::string& folder, std::string_view path, int flags)
{
    const FileDescriptor beginning = openFolder(folder);
    if (!beginning)
        return {};
    std::string rest(restOf(path, folder));
    if (rest.empty())
        rest = '.';
    struct open_how how = {};
    how.flags = static_cast<unsigned>(flags | O_CLOEXEC);
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
    FileDescriptor opened;
    // It gives up where something was renamed meanwhile.
    constexpr int tries = 128;
    for (int attempt = 0; attempt < tries && !opened; ++attempt) {
        opened = FileDescriptor(
            static_cast<int>(::syscall(SYS_openat2, beginning.get(), rest.c_str(), &how, sizeof(how))));
        if (!opened && errno != EAGAIN && errno != EINTR)
            break;
    }
    // EPERM is what a sandbox says that does not know the call.
    if (!opened && (errno == ENOSYS || errno == EPERM))
        return openBeneathByWalking(folder, path, flags);
    return opened;
}

FileDescriptor openBeneathByWalking(const std::string& folder, std::string_view path, int flags)
{
    FileDescriptor reached = openFolder(folder);
    std::string_view rest = restOf(path, folder);
    if (rest.empty() && reached)
        return FileDescriptor(::openat(reached.get(), ".", flags | O_CLOEXEC));
    while (reached && !rest.empty()) {
        const std::size_t end = std::min(rest.find('/'), rest.size());
        const std::string name(rest.substr(0, end));
        rest = restOf(rest, name);
        if (name == "..") {
            errno = EXDEV;
            return {};
        }
        reached = openName(reached, name, rest.empty() ? flags : O_PATH | O_DIRECTORY);
    }
    return reached;
}

} // namespace MenuExtension
