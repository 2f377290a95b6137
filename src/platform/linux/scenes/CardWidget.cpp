#include "platform/linux/scenes/CardWidget.h"

#include "platform/linux/look/ThemeColors.h"
#include "platform/linux/scenes/Label.h"

#include <QAbstractButton>
#include <QPainter>

namespace LinuxDesktop {

namespace {

constexpr qreal cornerRadius = 10.0;

} // namespace

void CardWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    const auto* title = findChild<Label*>(m_titleLabel);
    if (m_followsTitle || !title)
        return;
    m_followsTitle = true;
    connect(title, &Label::textChanged, this, &CardWidget::tellTitle);
    tellTitle(title->text());
}

void CardWidget::tellTitle(const QString& title)
{
    setAccessibleName(title);
    for (auto* button : findChildren<QAbstractButton*>())
        button->setAccessibleName(tr("%1: %2").arg(button->text(), title));
}

void CardWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(dividingLine(palette()));
    painter.setBrush(palette().color(QPalette::Base));
    // Whole pixels, each line in the middle of its own.
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

} // namespace LinuxDesktop
