#pragma once

#include "platform/ViewController.h"

#include <QPointer>
#include <QWidget>

namespace LinuxDesktop {

/// The widgets that a controller's scene was made of. Main thread.
class WidgetScene : public NS::Controller::Scene {
public:
    explicit WidgetScene(std::unique_ptr<QWidget> root) : m_root(root.release()) {}
    ~WidgetScene() override;

    /// The widget of the controller's scene.
    [[nodiscard]] static QWidget& rootOf(const NS::Controller& controller);

private:
    // A window that shows the scene takes the widget as its child, and may go first.
    QPointer<QWidget> m_root;
};

} // namespace LinuxDesktop
