#pragma once

#include "platform/UserDefaults.h"

#include <string>

namespace LinuxDesktop {

/// Stands for the program's own settings where they cannot be read: starts empty and lasts as long as the process.
class EmptyDefaults : public NS::UserDefaults {
public:
    std::optional<NS::Value> objectForKey(std::string_view key) override
    {
        const auto held = m_values.find(key);
        return held == m_values.end() ? std::nullopt : std::optional(held->second);
    }
    void setObject_forKey(NS::Value value, std::string_view key) override
    {
        m_values.insert_or_assign(std::string(key), std::move(value));
    }
    void removeObjectForKey(std::string_view key) override { m_values.erase(std::string(key)); }
    bool synchronize() override { return false; }

private:
    NS::Value::Dictionary m_values;
};

} // namespace LinuxDesktop
