#pragma once

#include "platform/Alert.h"
#include "support/CallLog.h"
#include "support/FakeButton.h"
#include "support/FakeSheet.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// An alert whose buttons the test clicks. One without an action of its own is recorded as dismissing it.
class FakeAlert : public NS::Alert {
public:
    /// `whileModal` is called while the alert runs modally; it may be empty.
    FakeAlert(CallLog& calls, std::string name, const std::function<void()>& whileModal)
        : m_calls(calls), m_name(std::move(name)), m_whileModal(whileModal), m_window(m_name + ".window")
    {}

    void setAlertStyle(NS::AlertStyle style) override { m_calls.record(m_name, "setAlertStyle", style); }
    void setMessageText(std::string_view text) override { m_calls.record(m_name, "setMessageText", text); }
    void setInformativeText(std::string_view text) override { m_calls.record(m_name, "setInformativeText", text); }
    void addButtonWithTitle(std::string_view title) override;
    std::vector<NS::Button*> buttons() override;
    NS::Sheet& window() override { return m_window; }
    void beginSheetModalForWindow(NS::Window& parent) override;
    void runModal() override;

    [[nodiscard]] FakeButton& button(std::size_t index) { return *m_buttons.at(index); }

private:
    CallLog& m_calls;
    std::string m_name;
    const std::function<void()>& m_whileModal;
    FakeSheet m_window;
    std::vector<std::unique_ptr<FakeButton>> m_buttons;
};
