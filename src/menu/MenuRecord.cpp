#include "menu/MenuRecord.h"

#include "platform/FatalError.h"
#include "settings/Reading.h"
#include "settings/Settings.h"

#include <optional>

namespace {

using Items = std::vector<NS::Value::Dictionary>;
using Flags = std::vector<std::int64_t>;

constexpr std::int64_t on = 1;

void storeFlags(const Flags& flags, std::string_view legacyKey, NS::UserDefaults& suite)
{
    suite.setObject_forKey(NS::Value::Array(flags.begin(), flags.end()), legacyKey);
    suite.synchronize();
}

NS::Value::Dictionary makeItem(const std::string& title, bool state)
{
    return {{std::string(MenuItemSettings::title.key), title}, {std::string(MenuItemSettings::state.key), state}};
}

MenuRecord loadLegacyRecord(std::size_t actions, std::string_view legacyKey, NS::UserDefaults* suite)
{
    MenuRecord record;
    if (const auto stored = suite ? suite->arrayForKey(legacyKey) : std::nullopt) {
        record.flags = require(Settings::save14, *stored);
        if (record.flags.size() == actions)
            return record;
    }
    record.flags.assign(actions, on);
    if (suite)
        storeFlags(record.flags, legacyKey, *suite);
    return record;
}

MenuRecord migrateLegacyRecord(const std::vector<std::string>& catalogue, std::string_view legacyKey,
                               NS::UserDefaults& suite)
{
    MenuRecord record;
    if (auto flags = require(Settings::save14, suite, legacyKey))
        record.flags = *std::move(flags);
    // A record of the catalogue's own length is started afresh too, on purpose.
    if (catalogue.size() <= record.flags.size())
        record.flags.assign(catalogue.size(), on);
    else
        record.flags.resize(catalogue.size(), on);
    storeFlags(record.flags, legacyKey, suite);

    for (std::size_t position = 0; position < catalogue.size(); ++position)
        record.items.push_back(makeItem(catalogue[position], record.flags[position] == on));
    storeMenuItems(record.items, suite);
    return record;
}

MenuRecord makeFreshRecord(const std::vector<std::string>& catalogue, NS::UserDefaults* suite)
{
    MenuRecord record;
    for (const std::string& title : catalogue)
        record.items.push_back(makeItem(title, true));
    if (suite)
        storeMenuItems(record.items, *suite);
    return record;
}

} // namespace

MenuRecord loadMenuRecord(const std::vector<std::string>& catalogue, std::string_view legacyKey,
                          NS::UserDefaults* suite, std::string_view version)
{
    if (version == "1.8")
        return loadLegacyRecord(catalogue.size(), legacyKey, suite);
    if (!suite)
        return makeFreshRecord(catalogue, suite);
    if (const auto stored = suite->objectForKey(Settings::menuArrayDic.key)) {
        auto items = stored->array() ? readWhole(Settings::menuArrayDic, *stored->array()) : std::nullopt;
        return items ? MenuRecord{.items = *std::move(items), .flags = {}} : makeFreshRecord(catalogue, suite);
    }
    if (suite->objectForKey(legacyKey))
        return migrateLegacyRecord(catalogue, legacyKey, *suite);
    return makeFreshRecord(catalogue, suite);
}

void storeMenuItems(const Items& items, NS::UserDefaults& suite)
{
    suite.setObject_forKey(NS::Value::Array(items.begin(), items.end()), Settings::menuArrayDic.key);
    suite.synchronize();
}

std::string menuItemTitle(const NS::Value::Dictionary& item)
{
    return read(MenuItemSettings::title, item).value_or(std::string());
}

bool menuItemState(const NS::Value::Dictionary& item)
{
    return read(MenuItemSettings::state, item).value_or(MenuItemSettings::state.initially);
}

void toggleMenuItem(NS::Value::Dictionary& item)
{
    // What is not a boolean reads as off, so it comes out on.
    item.insert_or_assign(std::string(MenuItemSettings::state.key), !menuItemState(item));
}
