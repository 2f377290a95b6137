#include "menu/MenuRecord.h"

#include "platform/FatalError.h"
#include "settings/SettingsKeys.h"

#include <cmath>
#include <optional>

namespace {

using Items = std::vector<NS::Value::Dictionary>;
using Flags = std::vector<std::int64_t>;

constexpr std::int64_t on = 1;
constexpr std::int64_t off = 0;

std::int64_t flagFromNumber(const NS::Value& element)
{
    if (const auto integer = element.integer())
        return *integer;
    // A number that no flag can hold is not 1, and that is all that counts.
    if (element.largeInteger())
        return off;
    if (const auto real = element.real())
        return std::abs(*real) < 0x1p63 ? static_cast<std::int64_t>(*real) : off;
    NS::fatalError("the older menu record holds something that is not a number");
}

Flags flagsFromArray(const NS::Value::Array& stored)
{
    Flags flags;
    flags.reserve(stored.size());
    for (const NS::Value& element : stored)
        flags.push_back(flagFromNumber(element));
    return flags;
}

void storeFlags(const Flags& flags, std::string_view legacyKey, NS::UserDefaults& suite)
{
    suite.setObject_forKey(NS::Value::Array(flags.begin(), flags.end()), legacyKey);
    suite.synchronize();
}

NS::Value::Dictionary makeItem(const std::string& title, bool state)
{
    return {{std::string(MenuItemKey::title), title}, {std::string(MenuItemKey::state), state}};
}

std::optional<Items> itemsFromValue(const NS::Value& stored)
{
    if (!stored.array())
        return std::nullopt;
    Items items;
    items.reserve(stored.array()->size());
    for (const NS::Value& element : *stored.array()) {
        if (!element.dictionary())
            return std::nullopt;
        items.push_back(*element.dictionary());
    }
    return items;
}

MenuRecord loadLegacyRecord(std::size_t actions, std::string_view legacyKey, NS::UserDefaults* suite)
{
    MenuRecord record;
    if (const auto stored = suite ? suite->arrayForKey(legacyKey) : std::nullopt) {
        record.flags = flagsFromArray(*stored);
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
    const auto stored = suite.arrayForKey(legacyKey);
    if (!stored)
        NS::fatalError("the older menu record is not an array");
    MenuRecord record;
    record.flags = flagsFromArray(*stored);
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
    if (const auto stored = suite->objectForKey(SettingsKey::menuArrayDic)) {
        if (auto items = itemsFromValue(*stored))
            return {.items = *std::move(items), .flags = {}};
        return makeFreshRecord(catalogue, suite);
    }
    if (suite->objectForKey(legacyKey))
        return migrateLegacyRecord(catalogue, legacyKey, *suite);
    return makeFreshRecord(catalogue, suite);
}

void storeMenuItems(const Items& items, NS::UserDefaults& suite)
{
    suite.setObject_forKey(NS::Value::Array(items.begin(), items.end()), SettingsKey::menuArrayDic);
    suite.synchronize();
}

std::string menuItemTitle(const NS::Value::Dictionary& item)
{
    const auto title = item.find(MenuItemKey::title);
    return title != item.end() && title->second.string() ? *title->second.string() : std::string();
}

bool menuItemState(const NS::Value::Dictionary& item)
{
    const auto state = item.find(MenuItemKey::state);
    return state != item.end() && state->second.boolean().value_or(false);
}

void toggleMenuItem(NS::Value::Dictionary& item)
{
    // What is not a boolean reads as off, so it comes out on.
    item.insert_or_assign(std::string(MenuItemKey::state), !menuItemState(item));
}
