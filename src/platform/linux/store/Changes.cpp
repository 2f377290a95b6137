#include "platform/linux/store/Changes.h"

#include <algorithm>
#include <utility>

namespace LinuxDesktop {

void Changes::set(std::string_view key, NS::Value value, std::string text)
{
    m_keys.insert_or_assign(std::string(key), Change{.value = std::move(value),
                                                     .text = std::make_shared<const std::string>(std::move(text)),
                                                     .meant = {},
                                                     .serial = ++m_serial});
}

void Changes::remove(std::string_view key, std::vector<NS::Value> meant)
{
    m_keys.insert_or_assign(
        std::string(key),
        Change{.value = std::nullopt, .text = nullptr, .meant = std::move(meant), .serial = ++m_serial});
}

void Changes::replaceAll(const NS::Value::Dictionary& values)
{
    m_keys.clear();
    m_replaced = ++m_serial;
    for (const auto& [key, value] : values)
        m_keys.emplace(key, Change{.value = value, .text = nullptr, .meant = {}, .serial = m_serial});
}

void Changes::forget(const Changes& written)
{
    std::erase_if(m_keys, [&](const auto& entry) { return entry.second.serial <= written.m_serial; });
    if (m_replaced <= written.m_serial)
        m_replaced = 0;
}

bool Changes::changeNothing() const
{
    return !hidesFile() && std::ranges::all_of(m_keys, [](const auto& entry) {
        return !entry.second.value && entry.second.meant.empty();
    });
}

bool Changes::isSet(std::string_view key) const
{
    const auto change = m_keys.find(key);
    return change != m_keys.end() && change->second.value;
}

bool Changes::isRemoved(std::string_view key) const
{
    const auto change = m_keys.find(key);
    return change != m_keys.end() && !change->second.value;
}

bool Changes::removalsHold(const NS::Value::Dictionary& file) const
{
    return std::ranges::all_of(m_keys, [&](const auto& entry) {
        const auto& [key, change] = entry;
        const auto held = file.find(key);
        return change.value || held == file.end() || std::ranges::any_of(change.meant, [&](const NS::Value& meant) {
                   return PropertyList::identical(meant, held->second);
               });
    });
}

std::optional<NS::Value> Changes::over(const NS::Value::Dictionary& file, std::string_view key) const
{
    const auto change = m_keys.find(key);
    if (change != m_keys.end() && change->second.value)
        return change->second.value;
    if (hidesFile() || (change != m_keys.end() && removalsHold(file)))
        return std::nullopt;
    const auto held = file.find(key);
    return held == file.end() ? std::nullopt : std::optional(held->second);
}

NS::Value::Dictionary Changes::over(const NS::Value::Dictionary& file) const
{
    NS::Value::Dictionary result;
    if (!hidesFile())
        result = file;
    const bool removing = removalsHold(file);
    for (const auto& [key, change] : m_keys) {
        if (change.value)
            result.insert_or_assign(key, *change.value);
        else if (removing)
            result.erase(key);
    }
    return result;
}

PropertyList::Texts Changes::texts() const
{
    PropertyList::Texts texts;
    for (const auto& [key, change] : m_keys)
        if (change.text)
            texts.emplace(key, *change.text);
    return texts;
}

} // namespace LinuxDesktop
