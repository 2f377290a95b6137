#include "platform/linux/widgets/RowWidget.h"

#include "platform/linux/widgets/Label.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>

namespace LinuxDesktop {

RowWidget::RowWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_Hover);
}

void RowWidget::prepare()
{
    for (auto* button : findChildren<QAbstractButton*>()) {
        if (!button->isHidden())
            m_controls.append(button);
    }
    if (auto* title = findChild<Label*>()) {
        connect(title, &Label::textChanged, this, [this](const QString& text) {
            setAccessibleName(text);
            for (QWidget* control : m_controls)
                control->setAccessibleName(text);
        });
    }
    setCurrent(false);
}

void RowWidget::setCurrent(bool current)
{
    m_current = current;
    for (QWidget* control : m_controls)
        control->setFocusPolicy(current ? Qt::StrongFocus : Qt::ClickFocus);
    update();
}

void RowWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor tint = palette().color(QPalette::Text);
    if (underMouse()) {
        tint.setAlphaF(0.05F);
        painter.fillRect(rect(), tint);
    }
    tint.setAlphaF(0.10F);
    painter.fillRect(QRect(0, height() - 1, width(), 1), tint);
}

} // namespace LinuxDesktop
