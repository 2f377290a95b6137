#include "extension/ExtensionSettings.h"

#include "settings/SettingsKeys.h"

#include <string_view>

namespace MenuExtension {

namespace {

constexpr std::int64_t active = 1;

const NS::Value* valueIn(const NS::Value::Dictionary& values, std::string_view key)
{
    const auto found = values.find(key);
    return found == values.end() ? nullptr : &found->second;
}

const NS::Value::Array& arrayIn(const NS::Value::Dictionary& values, std::string_view key)
{
    static const NS::Value::Array none;
    const NS::Value* value = valueIn(values, key);
    return value && value->array() ? *value->array() : none;
}

bool booleanIn(const NS::Value::Dictionary& values, std::string_view key, bool otherwise)
{
    const NS::Value* value = valueIn(values, key);
    return value ? value->boolean().value_or(otherwise) : otherwise;
}

std::vector<MenuItem> menuItemsIn(const NS::Value::Array& stored)
{
    std::vector<MenuItem> items;
    for (const NS::Value& element : stored) {
        const NS::Value* title = element.dictionary() ? valueIn(*element.dictionary(), MenuItemKey::title) : nullptr;
        if (title && title->string())
            items.push_back({*title->string(), booleanIn(*element.dictionary(), MenuItemKey::state, false)});
    }
    return items;
}

/// The states go with the paths by their position, so an element that is no path still has its state.
std::vector<Folder> foldersIn(const NS::Value::Array& paths, const NS::Value::Array& states)
{
    std::vector<Folder> folders;
    for (std::size_t index = 0; index < paths.size(); ++index) {
        const std::string* path = paths[index].string();
        if (!path || !path->starts_with('/'))
            continue;
        const auto state = index < states.size() ? states[index].integer() : std::nullopt;
        folders.push_back({*path, state.value_or(active) == active});
    }
    return folders;
}

std::vector<std::string> stringsIn(const NS::Value::Array& stored)
{
    std::vector<std::string> strings;
    for (const NS::Value& element : stored) {
        if (element.string())
            strings.push_back(*element.string());
    }
    return strings;
}

} // namespace

ExtensionSettings settingsFromSuite(const NS::Value::Dictionary& suite)
{
    const ExtensionSettings otherwise;
    return {
        .menuItems = menuItemsIn(arrayIn(suite, SettingsKey::menuArrayDic)),
        .folders =
            foldersIn(arrayIn(suite, SettingsKey::foldersArray), arrayIn(suite, SettingsKey::foldersArraystate)),
        .customFolders = stringsIn(arrayIn(suite, SettingsKey::arrCustomFoldersUrls)),
        .showMenuIcon = booleanIn(suite, SettingsKey::showmenuicon, otherwise.showMenuIcon),
        .showInSubmenu = booleanIn(suite, SettingsKey::showinSubMenu, otherwise.showInSubmenu),
    };
}

} // namespace MenuExtension
