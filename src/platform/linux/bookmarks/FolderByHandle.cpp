#include "platform/linux/bookmarks/FolderByHandle.h"

#include "platform/linux/bookmarks/NearestFolder.h"

#include <climits>
#include <fcntl.h>
#include <unistd.h>

namespace LinuxDesktop {

std::optional<std::string> folderByHandle(const std::string& oldPath, const FolderIdentity& folder)
{
    if (!folder.handle)
        return std::nullopt;
    // Any folder of the file system tells the kernel which one the handle is of. A descriptor that only identifies is
    // not enough for it.
    const FileDescriptor place(::open(nearestFolderAbove(oldPath).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const auto identity = place ? FolderIdentity::of(place) : std::nullopt;
    if (!identity || !identity->sameFileSystem(folder))
        return std::nullopt;

    FileHandleBuffer handle(*folder.handle);
    const FileDescriptor found(::open_by_handle_at(place.get(), handle.get(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!found)
        return std::nullopt;
    std::string path(PATH_MAX, '\0');
    const ssize_t length =
        ::readlink(("/proc/self/fd/" + std::to_string(found.get())).c_str(), path.data(), path.size());
    if (length < 0)
        return std::nullopt;
    path.resize(static_cast<std::size_t>(length));
    // The link of a folder that was deleted, or that this process cannot reach, is not a path to it.
    return isFolderAt(folder, path) ? std::optional(std::move(path)) : std::nullopt;
}

} // namespace LinuxDesktop
