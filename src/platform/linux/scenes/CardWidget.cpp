#include "platform/linux/scenes/CardWidget.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/scenes/Label.h"

#include <QAbstractButton>

namespace LinuxDesktop {

CardWidget::CardWidget(QWidget* parent) : Card(parent)
{
    setAccessibleRole(*this, QAccessible::ListItem);
}

void CardWidget::showEvent(QShowEvent* event)
{
    Card::showEvent(event);
    auto* title = findChild<Label*>(m_titleLabel);
    if (m_followsTitle || !title)
        return;
    m_followsTitle = true;
    setAccessibleRole(*title, QAccessible::Heading);
    connect(title, &Label::textChanged, this, &CardWidget::tellTitle);
    tellTitle(title->text());
}

void CardWidget::tellTitle(const QString& title)
{
    for (auto* button : findChildren<QAbstractButton*>())
        LinuxDesktop::setAccessibleName(*button, tr("%1: %2").arg(button->text(), title));
}

} // namespace LinuxDesktop
