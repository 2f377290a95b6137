#include "extension/actions/support/Request.h"

#include "extension/actions/support/Beneath.h"
#include "platform/linux/system/ParentFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace MenuExtension {

namespace fs = std::filesystem;
using LinuxDesktop::FileDescriptor;
using LinuxDesktop::parentFolder;

namespace {

std::optional<std::string_view> listedFolderOf(const Request& request, std::string_view path)
{
    return request.background ? request.scope.folderOfBackground(path) : request.scope.folderOfItem(path);
}

/// Where something truly lies: no name on the way to it is a link. Empty where that cannot be found out.
std::string placeOf(const std::string& path, int flags)
{
    const FileDescriptor found(::open(path.c_str(), O_PATH | O_CLOEXEC | (flags & O_NOFOLLOW)));
    std::error_code failed;
    return found ? fs::read_symlink("/proc/self/fd/" + std::to_string(found.get()), failed).native() : std::string();
}

/// The same, for a scope: what lies in the listed folder is named as that is, which may itself be listed by a link.
std::string placeIn(const std::string& listed, const std::string& path, int flags)
{
    const std::string folder = placeOf(listed.empty() ? "/" : listed, 0);
    std::string place = placeOf(path, flags);
    if (folder.size() > 1 && place.starts_with(folder) &&
        (place.size() == folder.size() || place[folder.size()] == '/'))
        place.replace(0, folder.size(), listed);
    return place;
}

/// `listed` is the folder that decides about the path by its text. Where a link leads out of it, or begins at the
/// root, the folder decides that what is there lies in; it is opened from there as if it had been asked for so.
FileDescriptor openIn(const Scope& scope, std::optional<std::string_view> listed, const std::string& path, int flags)
{
    if (!listed) {
        errno = EXDEV;
        return {};
    }
    FileDescriptor opened = openBeneath(std::string(*listed), path, flags);
    // Walking, it says ENOTDIR of a link where a folder is wanted.
    if (opened || (errno != EXDEV && errno != ELOOP && errno != ENOTDIR))
        return opened;
    const int error = errno;
    const std::string place = placeIn(std::string(*listed), path, flags);
    const auto deciding = scope.folderOfBackground(place);
    if (place == path || !deciding) {
        errno = error;
        return {};
    }
    return openBeneath(std::string(*deciding), place, flags);
}

/// A link to a file, or to nothing.
bool isLinkToNoFolder(const std::string& path)
{
    std::error_code failed;
    return fs::is_symlink(path, failed) && !fs::is_directory(path, failed);
}

} // namespace

FileDescriptor openItem(const Request& request, std::string_view path, int flags)
{
    return openIn(request.scope, listedFolderOf(request, path), std::string(path), flags);
}

FileDescriptor openFolderOfItem(const Request& request, std::string_view item, int flags)
{
    return openIn(request.scope, request.scope.folderOfItem(item), parentFolder(item), flags | O_DIRECTORY);
}

OpenedFolder openFolderOf(const Request& request)
{
    const std::string& path = request.paths.front();
    OpenedFolder folder{path, openItem(request, path, O_PATH | O_DIRECTORY)};
    if (!folder.descriptor && !request.background && (errno == ENOTDIR || errno == ENOENT || isLinkToNoFolder(path)))
        folder = {parentFolder(path), openFolderOfItem(request, path, O_PATH)};
    return folder;
}

} // namespace MenuExtension
