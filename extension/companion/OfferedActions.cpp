#include "extension/companion/OfferedActions.h"

#include "settings/MenuCatalogue.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace MenuExtension {

namespace {

bool canBeDone(std::string_view identifier, const std::string& programs)
{
    return identifier == actionOfFileManager || ::access((programs + '/').append(identifier).c_str(), X_OK) == 0;
}

} // namespace

std::vector<MenuAction> offeredActions(const std::vector<MenuItem>& items, const std::string& programs)
{
    std::vector<MenuAction> offered;
    for (const MenuItem& item : items) {
        const auto row = std::ranges::find(menuCatalogue, item.title, &CatalogueRow::title);
        if (!item.state || row == menuCatalogue.end() || !canBeDone(row->identifier, programs))
            continue;
        const std::string identifier(row->identifier);
        if (std::ranges::find(offered, identifier, &MenuAction::identifier) == offered.end())
            offered.push_back({identifier, item.title, "orvik-menu-" + identifier, row->appliesTo});
    }
    return offered;
}

std::string folderOfActions()
{
    std::error_code failed;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
    return (program.parent_path() / ORVIK_PROGRAMS_TO_ACTIONS).lexically_normal();
}

} // namespace MenuExtension
