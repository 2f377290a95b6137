#pragma once

#include "platform/Button.h"
#include "support/CallLog.h"

#include <string>
#include <vector>

/// A push button or checkbox that the test clicks.
class FakeButton : public NS::Button {
public:
    FakeButton(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void setState(NS::ControlState state) override
    {
        m_calls.record(m_name, "setState", state);
        m_state = state;
    }
    [[nodiscard]] NS::ControlState state() const override { return m_state; }
    void setEnabled(bool flag) override
    {
        m_calls.record(m_name, "setEnabled", flag);
        m_enabled = flag;
    }
    [[nodiscard]] bool isEnabled() const { return m_enabled; }
    NS::Rect bounds() const override { return {0.0, 0.0, {120.0, 24.0}}; }
    void addTrackingArea(const NS::TrackingArea& area) override
    {
        m_calls.record(m_name, "addTrackingArea", area.rect.x, area.rect.y, area.rect.size.width,
                       area.rect.size.height, area.options);
        m_trackingAreas.push_back(area);
    }
    [[nodiscard]] const std::vector<NS::TrackingArea>& trackingAreas() const { return m_trackingAreas; }

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
    bool m_enabled = true;
    std::vector<NS::TrackingArea> m_trackingAreas;
};
