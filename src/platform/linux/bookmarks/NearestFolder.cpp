#include "platform/linux/bookmarks/NearestFolder.h"

#include "platform/linux/bookmarks/FolderIdentity.h"
#include "platform/linux/system/ParentFolder.h"

namespace LinuxDesktop {

std::string nearestFolderAbove(std::string_view path)
{
    std::string folder = parentFolder(path);
    while (folder != "/" && !openFolderToIdentify(folder))
        folder = parentFolder(folder);
    return folder;
}

} // namespace LinuxDesktop
