#pragma once

#include "platform/Button.h"
#include "support/CallLog.h"

#include <string>

/// A push button or checkbox that the test clicks.
class FakeButton : public NS::Button {
public:
    FakeButton(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void setState(NS::ControlState state) override
    {
        m_calls.record(m_name, "setState", state);
        m_state = state;
    }
    [[nodiscard]] NS::ControlState state() const { return m_state; }

    /// As a user does: a checkbox changes what it shows, then the action is sent.
    void click()
    {
        m_state = m_state == NS::ControlState::On ? NS::ControlState::Off : NS::ControlState::On;
        sendAction();
    }

private:
    CallLog& m_calls;
    std::string m_name;
    NS::ControlState m_state = NS::ControlState::Off;
};
