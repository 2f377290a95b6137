#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <functional>

namespace LinuxDesktop {

/// Goes from 0 to 1 in the short time that the widget's style gives to an animation. Where motion is reduced, or
/// nobody sees the widget, it is there at once. The widget must outlive it. Main thread.
class Movement : public QVariantAnimation {
    Q_OBJECT

public:
    /// `step` is called at each step of the way, the first and the last too.
    Movement(QWidget& widget, std::function<void()> step);

    /// From the beginning, also while it is under way.
    void begin();
    /// How much of the way is done; all of it unless something moves.
    [[nodiscard]] qreal way() const;

private:
    QWidget& m_widget;
    std::function<void()> m_step;
};

} // namespace LinuxDesktop
