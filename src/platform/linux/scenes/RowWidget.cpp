#include "platform/linux/scenes/RowWidget.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/look/ControlPainting.h"
#include "platform/linux/look/Movement.h"
#include "platform/linux/look/ThemeColors.h"
#include "platform/linux/scenes/ImageStore.h"
#include "platform/linux/scenes/ImageWidget.h"
#include "platform/linux/scenes/Label.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <array>
#include <utility>

namespace LinuxDesktop {

namespace {

constexpr int selectionBarWidth = 3;
constexpr int folderIconExtent = 32;

/// The widgets that say that a folder is not there.
constexpr std::array missingParts{"imgmissing", "lblmissing"};

QString withoutHome(const QString& path)
{
    const QString home = QDir::homePath();
    if (path != home && !path.startsWith(home + u'/'))
        return path;
    return u'~' + path.mid(home.size());
}

} // namespace

RowWidget::RowWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_Hover);
}

RowWidget::~RowWidget() = default;

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
    m_title = findChild<Label*>();
    if (m_title) {
        // The scene names a button as “Delete %1”, and what has no name is called as its row.
        QList<std::pair<QAbstractButton*, QString>> named;
        for (QAbstractButton* control : controls)
            named.append({control, control->accessibleName()});
        connect(m_title, &Label::textChanged, this, [this, named](const QString& text) {
            LinuxDesktop::setAccessibleName(*this, text);
            for (const auto& [control, name] : named)
                LinuxDesktop::setAccessibleName(*control, name.isEmpty() ? text : name.arg(text));
        });
        connect(m_title, &Label::toolTipChanged, this, [controls](const QString& text) {
            for (QAbstractButton* control : controls)
                LinuxDesktop::setAccessibleDescription(*control, text);
        });
    }
    setCurrent(false);
}

void RowWidget::showFolder()
{
    auto* subtitle = findChild<Label*>(QStringLiteral("lblsubtitle"));
    auto* icon = findChild<ImageWidget*>(QStringLiteral("imgview"));
    if (!m_title || !subtitle || !icon)
        return;
    const QString given = m_title->givenToolTip();
    const QString path = given.isEmpty() ? m_title->givenText() : given;
    m_title->setWholeText(path);
    subtitle->setText(withoutHome(path));
    subtitle->setWholeText(path);
    subtitle->show();
    icon->setFixedSize(folderIconExtent, folderIconExtent);
    showMissing(icon->shows(ImageStore::missingItem()));
}

void RowWidget::showMissing(bool missing)
{
    for (const char* name : missingParts)
        findChild<QWidget*>(QLatin1String(name))->setVisible(missing);
    colorMissing();
    // Of a row only its controls are read.
    const auto* words = findChild<Label*>(QLatin1String(missingParts.back()));
    QStringList told{m_title->givenToolTip(), words->text()};
    if (told.first().isEmpty() && missing)
        told.removeFirst();
    for (QWidget* stop : m_stops)
        LinuxDesktop::setAccessibleDescription(*stop, missing ? told.join(QStringLiteral(", ")) : told.first());
}

void RowWidget::colorMissing()
{
    QPalette colors = palette();
    const QColor warning = warningText(colors);
    for (const char* name : missingParts) {
        if (auto* part = findChild<QWidget*>(QLatin1String(name))) {
            colors.setColor(part->foregroundRole(), warning);
            part->setPalette(colors);
        }
    }
}

void RowWidget::setLast(bool last)
{
    m_isLast = last;
    update();
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

void RowWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // Also while the row is still being made, where the colours are not the usual ones.
    if (event->type() == QEvent::PaletteChange)
        colorMissing();
}

/// A part of the row from its beginning, within the round corners of the list.
void RowWidget::fill(QPainter& painter, int width, const QColor& color) const
{
    const QWidget* list = parentWidget()->parentWidget();
    const QRect sheet(mapFrom(list, QPoint()), list->size());
    painter.setClipRect(QStyle::visualRect(layoutDirection(), rect(), QRect(0, 0, width, height())));
    painter.fillPath(ControlPainting::insideOfSheet(sheet), color);
    painter.setClipping(false);
}

void RowWidget::drawState(QPainter& painter) const
{
    if (isHighContrast(palette())) {
        drawStrongState(painter);
        return;
    }
    if (m_selected.value_or(false)) {
        QColor selection = palette().color(QPalette::Highlight);
        fill(painter, selectionBarWidth, selection);
        selection.setAlphaF(0.16F);
        fill(painter, width(), selection);
    }
    if (m_pressed || (underMouse() && isEnabled())) {
        QColor tint = palette().color(QPalette::Text);
        tint.setAlphaF(m_pressed ? 0.12F : 0.05F);
        fill(painter, width(), tint);
    }
}

/// Between black and white there is no tint.
void RowWidget::drawStrongState(QPainter& painter) const
{
    if (m_selected.value_or(false))
        fill(painter, 2 * selectionBarWidth, palette().color(QPalette::Highlight));
    if (!m_pressed && !(underMouse() && isEnabled()))
        return;
    const qreal line = m_pressed ? 4.0 : 2.0;
    constexpr qreal corner = 6.0;
    const qreal inset = 3.0 + line / 2;
    painter.setPen(QPen(palette().color(QPalette::Text), line));
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), corner, corner);
}

void RowWidget::appear()
{
    if (!m_appearing)
        m_appearing = std::make_unique<Movement>(*this, [this] { showAppearing(); });
    m_appearing->begin();
}

void RowWidget::showAppearing()
{
    const qreal way = m_appearing->way();
    if (way >= 1.0) {
        setGraphicsEffect(nullptr);
        return;
    }
    auto* veil = qobject_cast<QGraphicsOpacityEffect*>(graphicsEffect());
    if (!veil) {
        veil = new QGraphicsOpacityEffect(this);
        setGraphicsEffect(veil);
    }
    veil->setOpacity(way);
}

void RowWidget::setPressed(bool pressed)
{
    m_pressed = pressed;
    update();
}

void RowWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawState(painter);
    if (!m_isLast && m_title) {
        // It begins where the texts do.
        const QRect texts = m_title->geometry();
        QRect line(0, height() - 1, width(), 1);
        if (isRightToLeft())
            line.setRight(texts.right());
        else
            line.setLeft(texts.left());
        painter.fillRect(line, dividingLine(palette()));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect ring;
        ring.initFrom(this);
        ring.rect.adjust(1, 1, -1, -2);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
    }
}

} // namespace LinuxDesktop
