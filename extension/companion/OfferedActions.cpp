#include "extension/companion/OfferedActions.h"

#include "platform/LocalizedString.h"
#include "settings/MenuCatalogue.h"

#include <algorithm>
#include <iterator>
#include <unistd.h>

namespace MenuExtension {

namespace {

bool hasProgram(std::string_view identifier, const std::string& programs)
{
    return ::access((programs + '/').append(identifier).c_str(), X_OK) == 0;
}

} // namespace

OfferedActions offeredActions(const std::vector<MenuItem>& items, const std::string& programs)
{
    OfferedActions offered;
    for (const MenuItem& item : items) {
        const auto row = std::ranges::find(menuCatalogue, item.title, &CatalogueRow::title);
        if (!item.state || row == menuCatalogue.end())
            continue;
        const std::string identifier(row->identifier);
        if (std::ranges::find(offered.actions, identifier, &MenuAction::identifier) != offered.actions.end())
            continue;
        if (identifier != actionOfFileManager) {
            if (!hasProgram(identifier, programs))
                continue;
            const auto needs = needsOf(programs, identifier);
            std::ranges::copy(needs, std::back_inserter(offered.needs));
            if (!std::ranges::all_of(needs, isMet))
                continue;
        }
        offered.actions.push_back({identifier, NS::LocalizedString("MenuCatalogue", item.title),
                                   "orvik-menu-" + identifier, row->appliesTo});
    }
    return offered;
}

} // namespace MenuExtension
