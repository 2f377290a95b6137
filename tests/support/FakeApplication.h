#pragma once

#include "platform/Application.h"
#include "support/CallLog.h"

/// An application that only records what it is told: terminate() returns, as the real one does.
class FakeApplication : public NS::Application {
public:
    explicit FakeApplication(CallLog& calls) : m_calls(calls) {}

    bool setActivationPolicy(NS::ActivationPolicy policy) override
    {
        m_calls.record("application", "setActivationPolicy", policy);
        return !runsAlready;
    }
    void activateIgnoringOtherApps(bool flag) override
    {
        m_calls.record("application", "activateIgnoringOtherApps", flag);
    }
    void terminate() override { m_calls.record("application", "terminate"); }

    /// Whether another process is the program that shows windows.
    bool runsAlready = false;

private:
    CallLog& m_calls;
};
