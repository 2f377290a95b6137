#include "support/FakeScene.h"

#include "support/SceneAware.h"

#include <algorithm>

void FakeScene::remove(std::string_view viewName)
{
    const auto found = m_views.find(viewName);
    if (found == m_views.end())
        NS::fatalError("the fake scene " + m_name + " has no such view " + std::string(viewName));
    std::erase_if(m_actions, [&](const auto& sends) { return sends.second == found->second.get(); });
    m_views.erase(found);
}

void FakeScene::connectTo(NS::SceneObject& owner)
{
    owner.connect(*this);
    for (const auto& [name, view] : m_views) {
        if (auto* aware = dynamic_cast<SceneAware*>(view.get()))
            aware->connectTo(owner);
    }
}

void FakeScene::appear()
{
    for (const auto& [name, view] : m_views) {
        if (auto* aware = dynamic_cast<SceneAware*>(view.get()))
            aware->appear();
    }
}

void FakeScene::action(std::string_view selector, NS::Control::Action action)
{
    for (const auto& [named, control] : m_actions) {
        if (named == selector)
            control->setAction(action);
    }
}

NS::View* FakeScene::viewNamed(std::string_view viewName)
{
    const auto found = m_views.find(viewName);
    return found == m_views.end() ? nullptr : found->second.get();
}
