#include "extension/actions/support/Panel.h"

#include "extension/actions/support/Programs.h"
#include "platform/LocalizedString.h"

#include <filesystem>
#include <unistd.h>

namespace MenuExtension {

Outcome startPanel()
{
    const std::string name = "orvik-menu";
    const std::filesystem::path folder = Programs::folder();
    const std::filesystem::path beside = folder / name;
    const bool isThere = !folder.empty() && ::access(beside.c_str(), X_OK) == 0;
    if (Programs::start({isThere ? beside.native() : name}))
        return Outcome::done();
    return Outcome::failed(NS::LocalizedString(
        "Action", "The control panel of Orvik Menu could not be started. Install Orvik Menu again."));
}

} // namespace MenuExtension
