#pragma once

#include "platform/TextField.h"
#include "support/CallLog.h"

#include <string>

/// A text field that keeps what it shows.
class FakeTextField : public NS::TextField {
public:
    FakeTextField(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void setStringValue(std::string_view text) override
    {
        m_calls.record(m_name, "setStringValue", text);
        m_text = text;
    }
    void setToolTip(std::string_view text) override
    {
        m_calls.record(m_name, "setToolTip", text);
        m_toolTip = text;
    }
    [[nodiscard]] const std::string& text() const { return m_text; }
    [[nodiscard]] const std::string& toolTip() const { return m_toolTip; }

private:
    CallLog& m_calls;
    std::string m_name;
    std::string m_text;
    std::string m_toolTip;
};
