#include "support/FakeAlert.h"

#include "support/FakeWindow.h"

void FakeAlert::addButtonWithTitle(std::string_view title)
{
    m_calls.record(m_name, "addButtonWithTitle", title);
    auto& button = m_buttons.emplace_back(
        std::make_unique<FakeButton>(m_calls, m_name + ".button#" + std::to_string(m_buttons.size() + 1)));
    button->setAction([this](NS::Control&) { m_calls.record(m_name, "dismiss"); });
}

std::vector<NS::Button*> FakeAlert::buttons()
{
    m_calls.record(m_name, "buttons");
    std::vector<NS::Button*> buttons;
    for (const auto& button : m_buttons)
        buttons.push_back(button.get());
    return buttons;
}

void FakeAlert::beginSheetModalForWindow(NS::Window& parent)
{
    m_calls.record(m_name, "beginSheetModalForWindow", dynamic_cast<FakeWindow&>(parent).name());
}

void FakeAlert::runModal()
{
    m_calls.record(m_name, "runModal");
    if (m_whileModal)
        m_whileModal();
}
