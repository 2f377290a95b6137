#pragma once

#include "platform/Bundle.h"
#include "support/CallLog.h"

#include <optional>
#include <string_view>

/// A bundle of version "2.0" until the test says otherwise.
class FakeBundle : public NS::Bundle {
public:
    explicit FakeBundle(CallLog& calls) : m_calls(calls) { setVersion("2.0"); }

    const std::optional<NS::Value::Dictionary>& infoDictionary() override
    {
        m_calls.record("bundle", "infoDictionary");
        return information;
    }

    void setVersion(std::string_view version)
    {
        information = NS::Value::Dictionary{{"CFBundleShortVersionString", version}};
    }

    std::optional<NS::Value::Dictionary> information;

private:
    CallLog& m_calls;
};
