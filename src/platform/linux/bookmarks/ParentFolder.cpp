#include "platform/linux/bookmarks/ParentFolder.h"

#include "platform/linux/bookmarks/FolderIdentity.h"

namespace LinuxDesktop {

std::string parentFolder(std::string_view path)
{
    const auto withoutSlashes = [](std::string_view text) { return text.substr(0, text.find_last_not_of('/') + 1); };
    path = withoutSlashes(path);
    const std::string_view parent = withoutSlashes(path.substr(0, path.find_last_of('/') + 1));
    return parent.empty() ? "/" : std::string(parent);
}

std::string nearestParentFolder(std::string_view path)
{
    std::string folder = parentFolder(path);
    while (folder != "/" && !openFolderToIdentify(folder))
        folder = parentFolder(folder);
    return folder;
}

} // namespace LinuxDesktop
