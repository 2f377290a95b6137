#include "platform/linux/look/Movement.h"

#include <QStyle>

#include <utility>

namespace LinuxDesktop {

Movement::Movement(QWidget& widget, std::function<void()> step) : m_widget(widget), m_step(std::move(step))
{
    setStartValue(0.0);
    setEndValue(1.0);
    setEasingCurve(QEasingCurve::OutCubic);
    connect(this, &QVariantAnimation::valueChanged, this, [this] { m_step(); });
    connect(this, &QVariantAnimation::finished, this, [this] { m_step(); });
}

void Movement::begin()
{
    stop();
    const int duration = m_widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &m_widget);
    if (duration > 0 && m_widget.isVisible()) {
        setDuration(duration);
        start();
    }
    m_step();
}

qreal Movement::way() const
{
    return state() == Running ? currentValue().toReal() : 1.0;
}

} // namespace LinuxDesktop
