#pragma once

#include "platform/Connections.h"

#include <QObject>
#include <QWidget>

#include <map>
#include <string>

namespace LinuxDesktop {

using ActionMap = std::map<std::string, NS::Control::Action, std::less<>>;

/// Connects an object to a scene of widgets: an outlet is the widget of its name (the root for "window"), a
/// control or menu entry names its action in the property "action". Main thread.
class SceneConnections : public NS::Connections {
public:
    explicit SceneConnections(QWidget* root) : m_root(root) {}

    void action(std::string_view selector, NS::Control::Action action) override;

    /// Wires every sender in the scene to the object's action, or else to that of `responders`. An action that
    /// nobody has is fatal.
    void wire(const ActionMap& responders) const;

    [[nodiscard]] const ActionMap& actions() const { return m_actions; }

protected:
    NS::View* viewNamed(std::string_view name) override;

private:
    QWidget* m_root;
    ActionMap m_actions;
};

} // namespace LinuxDesktop
