#include "platform/linux/scenes/RowWidget.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/look/ThemeColors.h"
#include "platform/linux/scenes/Label.h"

#include <QAccessible>
#include <QCheckBox>
#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace LinuxDesktop {

namespace {

constexpr int selectionBarWidth = 3;

} // namespace

RowWidget::RowWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_Hover);
}

void RowWidget::prepare()
{
    QList<QAbstractButton*> controls = findChildren<QAbstractButton*>();
    controls.removeIf([](const QAbstractButton* button) { return button->isHidden(); });
    for (QAbstractButton* control : controls) {
        m_stops.append(control);
        if (!m_checkBox)
            m_checkBox = qobject_cast<QCheckBox*>(control);
    }
    if (!m_checkBox)
        m_stops.prepend(this);
    if (auto* title = findChild<Label*>()) {
        connect(title, &Label::textChanged, this, [this, controls](const QString& text) {
            LinuxDesktop::setAccessibleName(*this, text);
            for (QAbstractButton* control : controls)
                LinuxDesktop::setAccessibleName(
                    *control, control->text().isEmpty() ? text : tr("%1 %2").arg(control->text(), text));
        });
        connect(title, &Label::toolTipChanged, this, [controls](const QString& text) {
            for (QAbstractButton* control : controls)
                LinuxDesktop::setAccessibleDescription(*control, text);
        });
    }
    setCurrent(false);
}

void RowWidget::setCurrent(bool current)
{
    m_current = current;
    for (QWidget* stop : m_stops)
        stop->setFocusPolicy(current ? Qt::StrongFocus : Qt::ClickFocus);
    update();
}

void RowWidget::setSelected(std::optional<bool> selected)
{
    if (selected == m_selected)
        return;
    const bool wasKnown = m_selected.has_value();
    m_selected = selected;
    update();
    if (!wasKnown)
        return;
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void RowWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor tint = palette().color(QPalette::Text);
    if (m_selected.value_or(false)) {
        QColor selection = palette().color(QPalette::Highlight);
        painter.fillRect(QRect(0, 0, selectionBarWidth, height() - 1), selection);
        selection.setAlphaF(0.16F);
        painter.fillRect(rect(), selection);
    } else if (underMouse()) {
        tint.setAlphaF(0.05F);
        painter.fillRect(rect(), tint);
    }
    painter.fillRect(QRect(0, height() - 1, width(), 1), dividingLine(palette()));
    if (hasFocus()) {
        QStyleOptionFocusRect ring;
        ring.initFrom(this);
        ring.rect.adjust(1, 1, -1, -2);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
    }
}

} // namespace LinuxDesktop
