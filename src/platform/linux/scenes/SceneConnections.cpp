#include "platform/linux/scenes/SceneConnections.h"

#include "platform/linux/scenes/MenuItem.h"

#include <QAction>

namespace LinuxDesktop {

void SceneConnections::action(std::string_view selector, NS::Control::Action action)
{
    m_actions.insert_or_assign(std::string(selector), std::move(action));
}

NS::View* SceneConnections::viewNamed(std::string_view name)
{
    if (!m_root)
        return nullptr;
    QWidget* widget =
        name == "window" ? m_root : m_root->findChild<QWidget*>(QString::fromStdString(std::string(name)));
    return dynamic_cast<NS::View*>(widget);
}

void SceneConnections::wire(const ActionMap& responders) const
{
    for (QObject* sender : m_root->findChildren<QObject*>()) {
        const std::string selector = sender->property("action").toString().toStdString();
        if (selector.empty())
            continue;
        const auto own = m_actions.find(selector);
        const auto responder = responders.find(selector);
        if (own == m_actions.end() && responder == responders.end())
            NS::fatalError("nothing answers the action \"" + selector + "\"");
        const NS::Control::Action& action = own != m_actions.end() ? own->second : responder->second;
        if (auto* control = dynamic_cast<NS::Control*>(sender))
            control->setAction(action);
        else if (auto* entry = qobject_cast<QAction*>(sender))
            (new MenuItem(*entry))->setAction(action);
        else
            NS::fatalError("the sender of the action \"" + selector + "\" is not a control");
    }
}

} // namespace LinuxDesktop
