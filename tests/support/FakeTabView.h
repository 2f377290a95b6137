#pragma once

#include "platform/TabViewController.h"
#include "support/CallLog.h"

#include <string>

/// A tab view that keeps which of its pages shows; the first one does at the start.
class FakeTabView : public NS::TabView {
public:
    FakeTabView(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void selectTabViewItemAtIndex(int index) override
    {
        m_calls.record(m_name, "selectTabViewItemAtIndex", index);
        m_selected = index;
    }
    [[nodiscard]] int selected() const { return m_selected; }

private:
    CallLog& m_calls;
    std::string m_name;
    int m_selected = 0;
};
