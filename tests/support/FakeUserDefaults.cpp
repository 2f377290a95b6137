#include "support/FakeUserDefaults.h"

#include <utility>

std::optional<NS::Value> FakeUserDefaults::objectForKey(std::string_view key)
{
    m_calls.record(m_name, "objectForKey", key);
    const auto entry = m_domain.find(key);
    if (entry == m_domain.end())
        return std::nullopt;
    return entry->second;
}

void FakeUserDefaults::setObject_forKey(NS::Value value, std::string_view key)
{
    m_calls.record(m_name, "setObject_forKey", key);
    m_domain.insert_or_assign(std::string(key), std::move(value));
}

void FakeUserDefaults::removeObjectForKey(std::string_view key)
{
    m_calls.record(m_name, "removeObjectForKey", key);
    m_domain.erase(std::string(key));
}

bool FakeUserDefaults::synchronize()
{
    m_calls.record(m_name, "synchronize");
    return true;
}
