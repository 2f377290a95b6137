#pragma once

#include "platform/UserDefaults.h"
#include "platform/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The working copies of the stored menu records.
struct MenuRecord {
    /// menuArrayDic: one dictionary an action.
    std::vector<NS::Value::Dictionary> items;
    /// The older record: one flag an action of the catalogue, 1 = on.
    std::vector<std::int64_t> flags;
};

/// Reads the stored record and brings it up to date: makes it where there is none, migrates the older one
/// (under `legacyKey`), and leaves one that exists as it stands, whatever the catalogue says by now. Version
/// "1.8" keeps the older record alone. `suite` may be null: then nothing is read or stored. An older record
/// that cannot be read is fatal. Main thread.
[[nodiscard]] MenuRecord loadMenuRecord(const std::vector<std::string>& catalogue, std::string_view legacyKey,
                                        NS::UserDefaults* suite, std::string_view version);

/// Writes the items as the stored record, to disk.
void storeMenuItems(const std::vector<NS::Value::Dictionary>& items, NS::UserDefaults& suite);

/// An item's "title"; empty when it has none or it is not a string.
[[nodiscard]] std::string menuItemTitle(const NS::Value::Dictionary& item);
/// An item's "state"; false when it has none or it is not a boolean.
[[nodiscard]] bool menuItemState(const NS::Value::Dictionary& item);
/// Flips an item's "state"; one that has none, or none that is a boolean, comes out on.
void toggleMenuItem(NS::Value::Dictionary& item);
