#include "extension/actions/support/Request.h"

#include "extension/actions/support/Beneath.h"
#include "platform/linux/system/ParentFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <string>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;
using LinuxDesktop::parentFolder;

namespace {

std::optional<std::string_view> listedFolderOf(const Request& request, std::string_view path)
{
    return request.background ? request.scope.folderOfBackground(path) : request.scope.folderOfItem(path);
}

FileDescriptor openIn(std::optional<std::string_view> listed, std::string_view path, int flags)
{
    if (!listed) {
        errno = EXDEV;
        return {};
    }
    return openBeneath(std::string(*listed), path, flags);
}

} // namespace

FileDescriptor openItem(const Request& request, std::string_view path, int flags)
{
    return openIn(listedFolderOf(request, path), path, flags);
}

FileDescriptor openFolderOfItem(const Request& request, std::string_view item, int flags)
{
    return openIn(request.scope.folderOfItem(item), parentFolder(item), flags | O_DIRECTORY);
}

OpenedFolder openFolderOf(const Request& request)
{
    const std::string& path = request.paths.front();
    OpenedFolder folder{path, openItem(request, path, O_PATH | O_DIRECTORY)};
    // A file, or a link that leads to none.
    if (!folder.descriptor && !request.background && (errno == ENOTDIR || errno == ENOENT))
        folder = {parentFolder(path), openFolderOfItem(request, path, O_PATH)};
    return folder;
}

} // namespace MenuExtension
