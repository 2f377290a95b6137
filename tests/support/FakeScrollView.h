#pragma once

#include "platform/ScrollView.h"
#include "support/CallLog.h"

#include <string>

class FakeScrollView : public NS::ScrollView {
public:
    FakeScrollView(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void setBackgroundColor(NS::Color color) override { m_calls.record(m_name, "setBackgroundColor", color); }

private:
    CallLog& m_calls;
    std::string m_name;
};
