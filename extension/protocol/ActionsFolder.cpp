#include "extension/protocol/ActionsFolder.h"

#include <filesystem>
#include <system_error>

namespace MenuExtension {

std::string folderOfActions()
{
    std::error_code failed;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
    return (program.parent_path() / ORVIK_PROGRAMS_TO_ACTIONS).lexically_normal();
}

} // namespace MenuExtension
