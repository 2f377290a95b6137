#include "extension/companion/ExtensionSettings.h"

#include "settings/Reading.h"
#include "settings/Settings.h"

namespace MenuExtension {

namespace {

constexpr std::int64_t active = 1;

bool isOn(const Switch& setting, const NS::Value::Dictionary& stored)
{
    return read(setting, stored).value_or(setting.initially);
}

const NS::Value::Array& arrayIn(const NS::Value::Dictionary& stored, std::string_view key)
{
    static const NS::Value::Array none;
    const auto found = stored.find(key);
    return found != stored.end() && found->second.array() ? *found->second.array() : none;
}

std::vector<MenuItem> menuItemsIn(const NS::Value::Dictionary& suite)
{
    std::vector<MenuItem> items;
    for (const NS::Value::Dictionary& stored : readSound(Settings::menuArrayDic, suite)) {
        if (auto title = read(MenuItemSettings::title, stored))
            items.push_back({*std::move(title), isOn(MenuItemSettings::state, stored)});
    }
    return items;
}

/// The states go with the paths by their position, so an element that is no path still has its state.
std::vector<Folder> foldersIn(const NS::Value::Dictionary& suite)
{
    const NS::Value::Array& paths = arrayIn(suite, Settings::foldersArray.key);
    const NS::Value::Array& states = arrayIn(suite, Settings::foldersArraystate.key);
    std::vector<Folder> folders;
    for (std::size_t index = 0; index < paths.size(); ++index) {
        auto path = Settings::foldersArray.decode(paths[index]);
        if (!path || !path->starts_with('/'))
            continue;
        const auto state = index < states.size() ? Settings::foldersArraystate.decode(states[index]) : std::nullopt;
        folders.push_back({*std::move(path), state.value_or(active) == active});
    }
    return folders;
}

} // namespace

ExtensionSettings settingsFromSuite(const NS::Value::Dictionary& suite)
{
    return {
        .menuItems = menuItemsIn(suite),
        .folders = foldersIn(suite),
        .customFolders = readSound(Settings::arrCustomFoldersUrls, suite),
        .showMenuIcon = isOn(Settings::showmenuicon, suite),
        .showInSubmenu = isOn(Settings::showinSubMenu, suite),
    };
}

} // namespace MenuExtension
