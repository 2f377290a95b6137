#include "platform/linux/scenes/StepBadge.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QEvent>
#include <QPainter>

namespace LinuxDesktop {

namespace {

constexpr int extent = 32;

} // namespace

StepBadge::StepBadge(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleRole(*this, QAccessible::StaticText);
}

QSize StepBadge::sizeHint() const
{
    return {extent, extent};
}

void StepBadge::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_button)
        return;
    for (QWidget* scene = parentWidget(); scene && !m_button; scene = scene->parentWidget())
        m_button = scene->findChild<QWidget*>(m_buttonName);
    if (m_button)
        m_button->installEventFilter(this);
    tellState();
    if (m_button)
        tieWords(*this, *m_button);
}

bool StepBadge::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        tellState();
        describeByWords(*m_button);
        announce(*this, accessibleName());
    }
    return false;
}

void StepBadge::tellState()
{
    const bool done = m_button && !m_button->isEnabled();
    LinuxDesktop::setAccessibleName(*this, (done ? tr("Step %1, done") : tr("Step %1, to do")).arg(m_number));
    update();
}

void StepBadge::paintEvent(QPaintEvent*)
{
    const bool done = m_button && !m_button->isEnabled();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle = QRectF(rect()).adjusted(1, 1, -1, -1);
    const QColor strong = palette().color(QPalette::Highlight);
    painter.setPen(QPen(strong, 2.0));
    painter.setBrush(done ? QBrush(strong) : QBrush(Qt::NoBrush));
    painter.drawEllipse(circle);
    if (done) {
        const auto point = [&](qreal x, qreal y) { return QPointF(x * width(), y * height()); };
        painter.setPen(
            QPen(palette().color(QPalette::HighlightedText), 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF{{point(0.29, 0.52), point(0.44, 0.67), point(0.72, 0.35)}});
        return;
    }
    QFont digit = font();
    digit.setBold(true);
    painter.setFont(digit);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, QString::number(m_number));
}

} // namespace LinuxDesktop
