#include "platform/linux/scenes/MenuButton.h"

#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace LinuxDesktop {

namespace {

constexpr QSizeF line(16, 2);
constexpr int extent = static_cast<int>(line.width()) + 2 * MenuButton::padding;
constexpr qreal betweenLines = 5;

} // namespace

MenuButton::MenuButton(QWidget* parent) : QToolButton(parent)
{
    setText(tr("&Orvik Menu"));
    setAccessibleName(text().remove(u'&'));
    setToolTip(tr("Menu (F10)"));
    setAutoRaise(true);
    setPopupMode(InstantPopup);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(new QShortcut(QKeySequence(Qt::Key_F10), this), &QShortcut::activated, this, &MenuButton::showMenuByKey);
}

/// With the keyboard on its first entry, which is what is read of a menu that opens.
void MenuButton::showMenuByKey()
{
    // Showing it returns once it has gone.
    QMetaObject::invokeMethod(
        menu(), [entries = menu()] { entries->setActiveAction(entries->actions().value(0)); }, Qt::QueuedConnection);
    showMenu();
}

void MenuButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Down:
        showMenuByKey();
        return;
    default:
        QToolButton::keyPressEvent(event);
    }
}

QSize MenuButton::sizeHint() const
{
    return {extent, extent};
}

void MenuButton::showEvent(QShowEvent* event)
{
    QToolButton::showEvent(event);
    if (menu())
        return;
    auto* entries = new QMenu(this);
    entries->addActions(window()->actions());
    // A menu begins where its button does, as the button is read; this one is to end where the button ends.
    entries->setLayoutDirection(window()->layoutDirection());
    setLayoutDirection(window()->isRightToLeft() ? Qt::LeftToRight : Qt::RightToLeft);
    setMenu(entries);
}

void MenuButton::paintEvent(QPaintEvent*)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // It is its own sign, and needs no arrow.
    option.features = QStyleOptionToolButton::None;
    option.text.clear();
    option.icon = {};
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().windowText());
    QRectF bar(QPointF(), line);
    for (const int place : {-1, 0, 1}) {
        bar.moveCenter(QRectF(rect()).center() + QPointF(0, place * betweenLines));
        painter.drawRoundedRect(bar, line.height() / 2, line.height() / 2);
    }
}

} // namespace LinuxDesktop
