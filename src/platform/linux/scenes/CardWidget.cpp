#include "platform/linux/scenes/CardWidget.h"

#include "platform/linux/scenes/Label.h"

#include <QAbstractButton>

namespace LinuxDesktop {

void CardWidget::showEvent(QShowEvent* event)
{
    Card::showEvent(event);
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

} // namespace LinuxDesktop
