#include "extension/actions/support/Panel.h"

#include "extension/actions/support/Programs.h"
#include "platform/LocalizedString.h"

#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace MenuExtension {

Outcome startPanel()
{
    const std::string name = "orvik-menu";
    std::error_code error;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::filesystem::path beside = (own.parent_path() / ORVIK_ACTION_TO_PROGRAMS / name).lexically_normal();
    const bool isThere = !error && ::access(beside.c_str(), X_OK) == 0;
    if (Programs::start({isThere ? beside.native() : name}))
        return Outcome::done();
    return Outcome::failed(NS::LocalizedString(
        "Action", "The control panel of Orvik Menu could not be started. Install Orvik Menu again."));
}

} // namespace MenuExtension
