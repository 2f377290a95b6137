#pragma once

#include "platform/FatalError.h"
#include "platform/UserDefaults.h"
#include "settings/Setting.h"

#include <utility>
#include <vector>

// What is stored, as the settings' rows say. What a value of the wrong kind means is the caller's choice.

/// Nothing where nothing is stored, or something of another kind.
template<class T>
[[nodiscard]] std::optional<T> read(const Setting<T>& setting, const NS::Value::Dictionary& stored)
{
    const auto found = stored.find(setting.key);
    return found == stored.end() ? std::nullopt : setting.decode(found->second);
}

template<class T>
[[nodiscard]] std::optional<T> read(const Setting<T>& setting, NS::UserDefaults& stored)
{
    const auto value = stored.objectForKey(setting.key);
    return value ? setting.decode(*value) : std::nullopt;
}

/// The elements of the right kind; nothing counts for an array where none is stored.
template<class Element>
[[nodiscard]] std::vector<Element> readSound(const ListSetting<Element>& setting, const NS::Value::Dictionary& stored)
{
    std::vector<Element> list;
    const auto found = stored.find(setting.key);
    if (found == stored.end() || !found->second.array())
        return list;
    for (const NS::Value& value : *found->second.array()) {
        if (auto element = setting.decode(value))
            list.push_back(*std::move(element));
    }
    return list;
}

/// All elements; nothing where one of them is of another kind.
template<class Element>
[[nodiscard]] std::optional<std::vector<Element>> readWhole(const ListSetting<Element>& setting,
                                                            const NS::Value::Array& stored)
{
    std::vector<Element> list;
    list.reserve(stored.size());
    for (const NS::Value& value : stored) {
        auto element = setting.decode(value);
        if (!element)
            return std::nullopt;
        list.push_back(*std::move(element));
    }
    return list;
}

/// All elements; one of another kind is fatal.
template<class Element>
[[nodiscard]] std::vector<Element> require(const ListSetting<Element>& setting, const NS::Value::Array& stored)
{
    auto list = readWhole(setting, stored);
    if (!list)
        NS::fatalError("the stored " + std::string(setting.key) + " has an element of the wrong kind");
    return *std::move(list);
}

/// What is stored under `key`, the setting's own as a rule; nothing where nothing is. What is no array is fatal, as
/// is an element of another kind.
template<class Element>
[[nodiscard]] std::optional<std::vector<Element>> require(const ListSetting<Element>& setting,
                                                          NS::UserDefaults& stored, std::string_view key)
{
    if (!stored.objectForKey(key))
        return std::nullopt;
    const auto array = stored.arrayForKey(key);
    if (array)
        return require(setting, *array);
    // Gone by now, when another program has just removed it.
    if (stored.objectForKey(key))
        NS::fatalError("the stored " + std::string(setting.key) + " is not an array");
    return std::nullopt;
}

/// Replaces the whole list, on disk too.
template<class List>
void store(const List& list, NS::UserDefaults& stored, std::string_view key)
{
    stored.setValue_forKeyPath(NS::Value::Array(list.begin(), list.end()), key);
    stored.synchronize();
}
