#pragma once

#include "platform/ViewController.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace LinuxDesktop {

/// The widgets that a controller's scene was made of. Tells a view controller when they come into sight and leave
/// it. Main thread.
class WidgetScene : public QObject, public NS::Controller::Scene {
    Q_OBJECT

public:
    /// `controller` owns the scene.
    WidgetScene(std::unique_ptr<QWidget> root, NS::Controller& controller);
    ~WidgetScene() override;

    [[nodiscard]] NS::Rect frame() const override;
    /// The widget of the controller's scene.
    [[nodiscard]] static QWidget& rootOf(const NS::Controller& controller);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A window that shows the scene takes the widget as its child, and may go first.
    QPointer<QWidget> m_root;
    NS::ViewController* m_viewController;
};

} // namespace LinuxDesktop
