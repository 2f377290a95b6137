#pragma once

#include "platform/UserDefaults.h"
#include "support/CallLog.h"

#include <string>

/// A handle on a domain that the test holds as a plain dictionary.
class FakeUserDefaults : public NS::UserDefaults {
public:
    FakeUserDefaults(CallLog& calls, std::string name, NS::Value::Dictionary& domain)
        : m_calls(calls), m_name(std::move(name)), m_domain(domain)
    {}

    std::optional<NS::Value> objectForKey(std::string_view key) override;
    /// Records the key alone; the value is in the domain.
    void setObject_forKey(NS::Value value, std::string_view key) override;
    void removeObjectForKey(std::string_view key) override;
    bool synchronize() override;

private:
    CallLog& m_calls;
    std::string m_name;
    NS::Value::Dictionary& m_domain;
};
