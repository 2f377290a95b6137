#include "extension/actions/support/Action.h"
#include "settings/MenuCatalogue.h"

#include <algorithm>

namespace {

constexpr auto row = std::ranges::find(menuCatalogue, std::string_view(ORVIK_ACTION), &CatalogueRow::identifier);
static_assert(row != menuCatalogue.end(), "the action's folder is named by an identifier of the catalogue");

} // namespace

int main(int argc, char** argv)
{
    return MenuExtension::run(row->appliesTo, MenuExtension::perform, argc, argv);
}
