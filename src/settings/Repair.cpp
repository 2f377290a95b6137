#include "settings/Repair.h"

#include "platform/LocalizedString.h"
#include "settings/Settings.h"

#include <cstdint>
#include <utility>

namespace {

using NS::LocalizedString;

constexpr std::int64_t on = 1;

const NS::Value* valueIn(const NS::Value::Dictionary& suite, std::string_view key)
{
    const auto found = suite.find(key);
    return found == suite.end() ? nullptr : &found->second;
}

const NS::Value::Array* arrayIn(const NS::Value::Dictionary& suite, std::string_view key)
{
    const NS::Value* value = valueIn(suite, key);
    return value ? value->array() : nullptr;
}

/// The paths and their flags, which go by their places.
void mendFolders(const NS::Value::Dictionary& suite, std::vector<Mend>& mends)
{
    const auto& [pathsKey, isPath] = Settings::foldersArray;
    const auto& [flagsKey, isFlag] = Settings::foldersArraystate;
    const NS::Value::Array* storedPaths = arrayIn(suite, pathsKey);
    const NS::Value::Array* storedFlags = arrayIn(suite, flagsKey);

    NS::Value::Array paths;
    NS::Value::Array flags;
    // Not by comparison: a number that is none is no other's equal.
    bool isFlagMissing = !storedFlags;
    for (std::size_t place = 0; storedPaths && place < storedPaths->size(); ++place) {
        if (!isPath((*storedPaths)[place]))
            continue;
        paths.push_back((*storedPaths)[place]);
        const bool hasFlag = storedFlags && place < storedFlags->size() && isFlag((*storedFlags)[place]);
        flags.push_back(hasFlag ? (*storedFlags)[place] : NS::Value(on));
        isFlagMissing = isFlagMissing || !hasFlag;
    }

    if (!storedPaths && valueIn(suite, pathsKey)) {
        mends.push_back({pathsKey, std::nullopt, LocalizedString("Repair", "The list of folders is no list."),
                         LocalizedString("Repair", "What is no list is removed.")});
    } else if (storedPaths && paths.size() != storedPaths->size()) {
        const std::size_t dropped = storedPaths->size() - paths.size();
        mends.push_back(
            {pathsKey, paths,
             dropped == 1
                 ? LocalizedString("Repair", "1 entry of the list of folders is no path.")
                 : NS::stringWithFormat(LocalizedString("Repair", "%1 entries of the list of folders are no paths."),
                                        {std::to_string(dropped)}),
             LocalizedString("Repair", "What is no path is removed.")});
    }
    const bool noFlags = flags.empty() && !valueIn(suite, flagsKey);
    if (!noFlags && (isFlagMissing || storedFlags->size() != flags.size()))
        mends.push_back(
            {flagsKey, flags,
             LocalizedString("Repair",
                             "The list that says which folders are active does not match the list of folders."),
             LocalizedString("Repair", "A folder without an entry of its own becomes active.")});
}

void mendOlderRecord(const NS::Value::Dictionary& suite, std::vector<Mend>& mends)
{
    // Beside the newer list it is never read.
    if (valueIn(suite, Settings::menuArrayDic.key))
        return;
    const std::string_view key = Settings::save14.key;
    const NS::Value::Array* stored = arrayIn(suite, key);
    if (!stored) {
        if (valueIn(suite, key))
            mends.push_back({key, std::nullopt, LocalizedString("Repair", "The older list of menu items is no list."),
                             LocalizedString("Repair", "What is no list is removed.")});
        return;
    }
    NS::Value::Array flags;
    bool isFlagMissing = false;
    // Each as it stands where it is a number.
    for (const NS::Value& element : *stored) {
        const bool isFlag = Settings::save14.decode(element).has_value();
        flags.push_back(isFlag ? element : NS::Value(on));
        isFlagMissing = isFlagMissing || !isFlag;
    }
    if (isFlagMissing)
        mends.push_back({key, std::move(flags),
                         LocalizedString("Repair", "The older list of menu items has entries that are no numbers."),
                         LocalizedString("Repair", "A menu item without a number is switched on.")});
}

} // namespace

std::vector<Mend> mendsOf(const NS::Value::Dictionary& suite)
{
    std::vector<Mend> mends;
    mendFolders(suite, mends);
    mendOlderRecord(suite, mends);
    return mends;
}
