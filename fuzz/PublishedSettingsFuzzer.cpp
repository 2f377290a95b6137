#include "extension/bridges/gtk/Handles.h"
#include "extension/bridges/gtk/PublishedSettings.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

/// The bytes are properties as they come over the bus, whoever sent them. What is read of them suits a menu: titles
/// and names that a toolkit takes, each action once, and the same again when it is read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace MenuExtension;
    const Variant properties(
        g_variant_ref_sink(g_variant_new_from_data(G_VARIANT_TYPE_VARDICT, data, size, FALSE, nullptr, nullptr)));
    const MenuSettings settings = settingsFromProperties(*properties);
    std::set<std::string> identifiers;
    for (const MenuAction& action : settings.actions) {
        require(g_utf8_validate(action.title.c_str(), -1, nullptr) && !action.title.empty());
        require(identifiers.insert(action.identifier).second);
        for (const std::string& name : {action.identifier, action.icon})
            require(!name.empty() && name.find_first_of("/: \n") == std::string::npos);
    }
    require(!settings.scope.containsItem("relative/item"));
    require(settings.targets.size() <= mostTargets);
    std::set<std::string> paths;
    for (const Target& target : settings.targets) {
        require(target.path.starts_with('/') && paths.insert(target.path).second);
        for (const std::string& text : {target.title, target.description})
            require(!text.empty() && text.find('\n') == std::string::npos &&
                    g_utf8_validate(text.c_str(), -1, nullptr));
    }

    const SelectedItem item{.path = "/listed/item", .isFolder = false, .isPicture = true};
    const Menu menu = makeMenu(settings, {.items = {item}, .isBackground = false});
    require(menu.entries.empty() || settings.scope.containsItem(item.path));

    // The sound form of the same bytes says the same.
    const Variant sound(g_variant_get_normal_form(properties.get()));
    const MenuSettings again = settingsFromProperties(*sound);
    require(again.actions == settings.actions && again.targets == settings.targets &&
            again.inSubmenu == settings.inSubmenu);
    require(again.scope.containsItem(item.path) == settings.scope.containsItem(item.path));
    return 0;
}
