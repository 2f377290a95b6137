#include "platform/linux/system/ParentFolder.h"

namespace LinuxDesktop {

std::string parentFolder(std::string_view path)
{
    const auto withoutSlashes = [](std::string_view text) { return text.substr(0, text.find_last_not_of('/') + 1); };
    path = withoutSlashes(path);
    const std::string_view parent = withoutSlashes(path.substr(0, path.find_last_of('/') + 1));
    return parent.empty() ? "/" : std::string(parent);
}

} // namespace LinuxDesktop
