#pragma once

#include "platform/Connections.h"
#include "platform/FatalError.h"
#include "platform/ViewController.h"
#include "support/CallLog.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The views of a scene, by the names of the outlets that they fill, and the actions that its controls send.
class FakeScene : public NS::Controller::Scene, public NS::Connections {
public:
    /// In the call log the scene's views go by `name`, a dot, and their own name.
    FakeScene(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    [[nodiscard]] const std::string& name() const { return m_name; }
    NS::Rect frame() const override { return {0.0, 0.0, size}; }

    /// Of the root view.
    NS::Size size{600.0, 400.0};

    template<class T>
    T& add(std::string_view viewName)
    {
        auto view = std::make_unique<T>(m_calls, m_name + '.' + std::string(viewName));
        T& added = *view;
        m_views.insert_or_assign(std::string(viewName), std::move(view));
        return added;
    }

    /// A control whose action the scene names.
    template<class T>
    T& addSending(std::string_view selector, std::string_view viewName)
    {
        T& control = add<T>(viewName);
        m_actions.emplace_back(selector, &control);
        return control;
    }

    /// The view of that name. A test that asks for one that the scene does not have, or of another class, ends.
    template<class T>
    [[nodiscard]] T& view(std::string_view viewName)
    {
        auto* found = dynamic_cast<T*>(viewNamed(viewName));
        if (!found)
            NS::fatalError("the fake scene " + m_name + " has no such view " + std::string(viewName));
        return *found;
    }

    /// Takes a view away, as when it goes before the object that refers to it.
    void remove(std::string_view viewName);

    /// Lets `owner` connect itself, then makes it the delegate of the views that have one.
    void connectTo(NS::SceneObject& owner);
    void appear();

    void action(std::string_view selector, NS::Control::Action action) override;

protected:
    NS::View* viewNamed(std::string_view viewName) override;

private:
    CallLog& m_calls;
    std::string m_name;
    std::map<std::string, std::unique_ptr<NS::View>, std::less<>> m_views;
    std::vector<std::pair<std::string, NS::Control*>> m_actions;
};
