#include "extension/filemanagers/FileManagers.h"

namespace MenuExtension {

std::string packageFor(const FileManager& manager)
{
    return "orvik-menu-" + std::string(manager.program);
}

std::vector<std::string> quitCommand(const FileManager& manager)
{
    if (manager.quitOption.empty())
        return {};
    return {std::string(manager.program), std::string(manager.quitOption)};
}

} // namespace MenuExtension
