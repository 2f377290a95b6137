#pragma once

#include "platform/Window.h"
#include "support/CallLog.h"
#include "support/FakeSheet.h"
#include "support/FakeStoryboard.h"
#include "support/SceneAware.h"

#include <memory>
#include <string>

/// A window that keeps its content and that the test closes.
class FakeWindow : public NS::Window, public SceneAware {
public:
    FakeWindow(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void connectTo(NS::SceneObject& owner) override { m_delegate = dynamic_cast<NS::WindowDelegate*>(&owner); }

    /// Records the content by its scene's name.
    void setContentViewController(std::shared_ptr<NS::ViewController> controller) override
    {
        m_calls.record(m_name, "setContentViewController", sceneOf(*controller).name());
        m_content = std::move(controller);
    }
    void makeKeyAndOrderFront() override { m_calls.record(m_name, "makeKeyAndOrderFront"); }
    /// Records the sheet by its name.
    void endSheet(NS::Sheet& sheet) override
    {
        m_calls.record(m_name, "endSheet", dynamic_cast<FakeSheet&>(sheet).name());
    }

    [[nodiscard]] const std::string& name() const { return m_name; }
    [[nodiscard]] const std::shared_ptr<NS::ViewController>& content() const { return m_content; }

    /// As a user does.
    void close()
    {
        if (m_delegate)
            m_delegate->windowWillClose();
    }

private:
    CallLog& m_calls;
    std::string m_name;
    NS::WindowDelegate* m_delegate = nullptr;
    std::shared_ptr<NS::ViewController> m_content;
};
