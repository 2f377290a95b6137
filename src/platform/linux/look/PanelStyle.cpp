#include "platform/linux/look/PanelStyle.h"

#include "platform/linux/look/ControlPainting.h"
#include "platform/linux/look/TabMark.h"
#include "platform/linux/look/ThemeColors.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOption>
#include <QTabBar>

#include <algorithm>
#include <array>
#include <chrono>

namespace LinuxDesktop {

namespace {

/// Below this width the tabs stand closer together.
constexpr int narrowWindow = 470;
constexpr int narrowTabSpace = 6;
/// Of a button's arrow that tells of its menu.
constexpr int menuArrowExtent = 16;
constexpr int boxExtent = 18;
/// Between a checkbox and its text.
constexpr int boxSpacing = 8;
constexpr int comboBoxPadding = 5;
constexpr int scrollBarExtent = 10;
constexpr int shortestScrollHandle = 32;
constexpr int sliderKnobExtent = 18;
/// Long enough to be followed, and too short to be waited for.
constexpr std::chrono::milliseconds movementDuration{150};

/// What a scroll bar's groove is filled with: what lies beside it, where that fills itself.
QBrush grooveOf(const QWidget* scrollBar, const QPalette& palette)
{
    for (const QWidget* each = scrollBar; each; each = each->parentWidget()) {
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(each)) {
            const QWidget& viewport = *area->viewport();
            return viewport.autoFillBackground() ? palette.brush(viewport.backgroundRole()) : QBrush();
        }
    }
    return palette.base();
}

/// Whether the ring around what has the keyboard is to be seen: not by who uses the pointer.
bool showsFocus(const QStyleOption& option)
{
    constexpr QStyle::State both = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (option.state & both) == both;
}

/// The button that a person most likely wants: what its property "primary" says, else a dialog's default button.
bool isPrimary(const QStyleOptionButton& button, const QWidget* widget)
{
    const QVariant stated = widget ? widget->property("primary") : QVariant();
    if (stated.isValid() || !widget)
        return stated.toBool();
    // Outside of dialogs it is just the one that has the keyboard.
    return button.features.testFlag(QStyleOptionButton::DefaultButton) &&
           qobject_cast<const QDialog*>(widget->window());
}

QRect withoutFocusRoom(const QRect& rect)
{
    constexpr int room = ControlPainting::focusRoom;
    return rect.adjusted(room, room, -room, -room);
}

bool isModifier(const QKeyEvent& pressed)
{
    constexpr std::array modifiers{Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta};
    return std::find(modifiers.begin(), modifiers.end(), pressed.key()) != modifiers.end();
}

/// Where a piece that goes to and fro is on its way at this moment, from 0 to 1.
qreal busyWay()
{
    constexpr std::chrono::milliseconds period{1800};
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<qreal>(now % period) / period;
}

/// The item as it is drawn on the panel's own highlight instead of the base style's.
QStyleOptionMenuItem onHighlight(const QStyleOptionMenuItem& item, const QColor& color)
{
    QStyleOptionMenuItem text(item);
    text.state &= ~(QStyle::State_Selected | QStyle::State_Sunken);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        text.palette.setColor(role, color);
    return text;
}

QStyleOptionButton asButton(const QStyleOptionComboBox& box)
{
    QStyleOptionButton button;
    button.QStyleOption::operator=(box);
    if (box.state & QStyle::State_On)
        button.state |= QStyle::State_Sunken;
    return button;
}

/// In high contrast a grey alone does not tell that something cannot be used.
bool isSlanted(const QStyleOption& option)
{
    return !(option.state & QStyle::State_Enabled) && isHighContrast(option.palette);
}

/// The handle's place in a scroll bar that is nothing but its groove.
QRect scrollHandle(const QStyleOptionSlider& option)
{
    const bool upright = option.orientation == Qt::Vertical;
    const int groove = upright ? option.rect.height() : option.rect.width();
    const qint64 range = qint64{option.maximum} - option.minimum;
    if (range <= 0)
        return {};
    const auto natural = static_cast<int>(qint64{groove} * option.pageStep / (range + option.pageStep));
    const int length = std::clamp(natural, std::min(shortestScrollHandle, groove), groove);
    const int position = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                         groove - length, option.upsideDown);
    return upright ? QRect(option.rect.left(), option.rect.top() + position, option.rect.width(), length)
                   : QRect(option.rect.left() + position, option.rect.top(), length, option.rect.height());
}

} // namespace

PanelStyle::PanelStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    switch (element) {
    case PE_IndicatorCheckBox:
        ControlPainting::drawCheckBox(*option, *painter);
        break;
    case PE_PanelButtonCommand:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            ControlPainting::drawButton(*button, isPrimary(*button, widget), *painter);
        break;
    case PE_PanelButtonTool:
        ControlPainting::drawToolButton(*option, *painter);
        break;
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
        // One in a spin box has no frame of its own.
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth == 0)
            break;
        ControlPainting::drawLineEdit(*option, *painter);
        break;
    case PE_PanelItemViewItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
            ControlPainting::drawItem(*item, *painter);
        break;
    case PE_Frame:
        ControlPainting::drawFrame(*option, *painter, !qobject_cast<const QAbstractScrollArea*>(widget));
        break;
    case PE_FrameTabBarBase:
        painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1),
                          dividingLine(option->palette));
        break;
    case PE_FrameFocusRect:
        if (option->state & State_KeyboardFocusChange)
            ControlPainting::drawFocus(*option, *painter);
        break;
    case PE_PanelScrollAreaCorner:
        break;
    case PE_FrameMenu:
        // The base style's is a shade darker than the window, which on black is nothing.
        if (isHighContrast(option->palette))
            ControlPainting::drawFrame(*option, *painter, false);
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void PanelStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    const auto* menuItem = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    const auto* comboBox = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* progress = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (element == CE_ProgressBar && progress) {
        // A quarter of the way to and fro is the middle.
        ControlPainting::drawProgress(*progress, m_motion == Motion::Full ? busyWay() : 0.25, *painter);
    } else if (element == CE_TabBarTabShape) {
        const TabMark* mark = widget ? widget->findChild<TabMark*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
        ControlPainting::drawTab(*option, mark ? mark->place() : ControlPainting::markOfTab(option->rect), *painter);
    } else if (element == CE_TabBarTabLabel && tab) {
        // The base style would draw a focus of its own.
        QStyleOptionTab label(*tab);
        label.state &= ~State_HasFocus;
        QProxyStyle::drawControl(element, &label, painter, widget);
        if (showsFocus(*tab)) {
            label.rect.adjust(2, 4, -2, -6);
            ControlPainting::drawFocus(label, *painter);
        }
    } else if (element == CE_PushButton && button) {
        QStyleOptionButton part(*button);
        part.rect = subElementRect(SE_PushButtonBevel, button, widget);
        const bool isFilled = isPrimary(*button, widget);
        ControlPainting::drawButton(part, isFilled && !(button->features & QStyleOptionButton::Flat), *painter);
        part.palette.setColor(QPalette::ButtonText, ControlPainting::buttonText(*button, isFilled));
        QProxyStyle::drawControl(CE_PushButtonLabel, &part, painter, widget);
        if (button->features & QStyleOptionButton::HasMenu) {
            const int width = pixelMetric(PM_MenuButtonIndicator, button, widget);
            const QRect place(part.rect.right() - width - 4, part.rect.top(), width, part.rect.height());
            ControlPainting::drawArrow(visualRect(button->direction, part.rect, place), true,
                                       part.palette.color(QPalette::ButtonText), *painter);
        }
        if (showsFocus(*button))
            ControlPainting::drawFocusAround(part, *painter);
    } else if (element == CE_CheckBox && button) {
        // The base style asks itself where the parts are.
        QStyleOptionButton part(*button);
        part.rect = subElementRect(SE_CheckBoxIndicator, button, widget);
        ControlPainting::drawCheckBox(part, *painter);
        part.rect = subElementRect(SE_CheckBoxContents, button, widget);
        QProxyStyle::drawControl(CE_CheckBoxLabel, &part, painter, widget);
        part.rect = subElementRect(SE_CheckBoxIndicator, button, widget);
        if (showsFocus(*button))
            ControlPainting::drawFocusAround(part, *painter);
    } else if (element == CE_ComboBoxLabel && comboBox && !comboBox->editable) {
        QStyleOptionComboBox label(*comboBox);
        label.palette.setColor(QPalette::ButtonText, ControlPainting::buttonText(asButton(*comboBox), false));
        label.state &= ~(State_Sunken | State_On);
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else if (element == CE_HeaderSection && header) {
        ControlPainting::drawHeaderSection(*header, *painter);
    } else if (element == CE_MenuItem && menuItem && menuItem->menuItemType != QStyleOptionMenuItem::Separator &&
               (menuItem->state & State_Selected) && (menuItem->state & State_Enabled)) {
        const QStyleOptionMenuItem text =
            onHighlight(*menuItem, ControlPainting::drawMenuHighlight(*menuItem, *painter));
        QProxyStyle::drawControl(element, &text, painter, widget);
    } else if (element == CE_MenuItem && menuItem && isSlanted(*menuItem)) {
        QStyleOptionMenuItem text(*menuItem);
        text.font.setItalic(true);
        QProxyStyle::drawControl(element, &text, painter, widget);
    } else if (element == CE_ItemViewItem && item && isSlanted(*item)) {
        QStyleOptionViewItem text(*item);
        text.font.setItalic(true);
        QProxyStyle::drawControl(element, &text, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void PanelStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // What is drawn differently where the pointer is.
    if (const auto* view = qobject_cast<QAbstractItemView*>(widget))
        view->viewport()->setAttribute(Qt::WA_Hover);
    else if (qobject_cast<QTabBar*>(widget) || qobject_cast<QLineEdit*>(widget))
        widget->setAttribute(Qt::WA_Hover);
    if (auto* bar = qobject_cast<QTabBar*>(widget);
        bar && !bar->findChild<TabMark*>(QString(), Qt::FindDirectChildrenOnly))
        new TabMark(*bar);
}

void PanelStyle::unpolish(QWidget* widget)
{
    delete widget->findChild<TabMark*>(QString(), Qt::FindDirectChildrenOnly);
    QProxyStyle::unpolish(widget);
}

void PanelStyle::polish(QApplication* application)
{
    QProxyStyle::polish(application);
    application->installEventFilter(this);
}

void PanelStyle::unpolish(QApplication* application)
{
    application->removeEventFilter(this);
    QProxyStyle::unpolish(application);
}

bool PanelStyle::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!isModifier(*static_cast<QKeyEvent*>(event)))
            followHands(true);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        followHands(false);
        break;
    case QEvent::Show:
        if (auto* window = qobject_cast<QWidget*>(watched); window && window->isWindow())
            window->setAttribute(Qt::WA_KeyboardFocusChange, m_keyboardIsUsed);
        break;
    default:
        break;
    }
    return false;
}

/// The toolkit itself shows the ring from the first press of Tab on, and for ever.
void PanelStyle::followHands(bool keyboardIsUsed)
{
    if (keyboardIsUsed == m_keyboardIsUsed)
        return;
    m_keyboardIsUsed = keyboardIsUsed;
    for (QWidget* window : QApplication::topLevelWidgets())
        window->setAttribute(Qt::WA_KeyboardFocusChange, keyboardIsUsed);
    if (QWidget* focused = QApplication::focusWidget()) {
        focused->update();
        // What has it may be painted by the view that it lies in.
        if (const auto* area = qobject_cast<QAbstractScrollArea*>(focused))
            area->viewport()->update();
    }
}

void PanelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const
{
    const auto* spinBox = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (control == CC_SpinBox && spinBox) {
        drawSpinBox(*spinBox, *painter, widget);
        return;
    }
    const auto* comboBox = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_ComboBox && comboBox && !comboBox->editable) {
        drawComboBox(*comboBox, *painter, widget);
        return;
    }
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_Slider && bar) {
        ControlPainting::drawSlider(*bar, subControlRect(CC_Slider, bar, SC_SliderHandle, widget), showsFocus(*bar),
                                    *painter);
        return;
    }
    if (control == CC_ToolButton && isSlanted(*option))
        ControlPainting::drawToolButton(*option, *painter);
    if (control != CC_ScrollBar || !bar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    painter->fillRect(bar->rect, grooveOf(widget, bar->palette));
    if (const QRect handle = scrollHandle(*bar); handle.isValid())
        ControlPainting::drawScrollHandle(*bar, handle, *painter);
}

/// A button that says what is chosen.
void PanelStyle::drawComboBox(const QStyleOptionComboBox& box, QPainter& painter, const QWidget* widget) const
{
    const QStyleOptionButton button = asButton(box);
    ControlPainting::drawButton(button, false, painter);
    ControlPainting::drawArrow(subControlRect(CC_ComboBox, &box, SC_ComboBoxArrow, widget), true,
                               ControlPainting::buttonText(button, false), painter);
    if (showsFocus(box))
        ControlPainting::drawFocus(box, painter);
}

/// A field with two arrows.
void PanelStyle::drawSpinBox(const QStyleOptionSpinBox& box, QPainter& painter, const QWidget* widget) const
{
    ControlPainting::drawLineEdit(box, painter);
    const auto drawStep = [&](SubControl part, QAbstractSpinBox::StepEnabledFlag step, bool down) {
        QStyleOption button(box);
        button.rect = subControlRect(CC_SpinBox, &box, part, widget);
        const bool isUsable = box.stepEnabled & step;
        button.state.setFlag(State_Enabled, isUsable);
        button.state.setFlag(State_MouseOver, isUsable && box.activeSubControls == part);
        button.state.setFlag(State_Sunken, button.state.testFlag(State_MouseOver) && (box.state & State_Sunken));
        if (isUsable)
            ControlPainting::drawToolButton(button, painter);
        const auto group = isUsable && (box.state & State_Enabled) ? QPalette::Active : QPalette::Disabled;
        ControlPainting::drawArrow(button.rect, down, box.palette.color(group, QPalette::Text), painter);
    };
    drawStep(SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, false);
    drawStep(SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, true);
}

QRect PanelStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                                 const QWidget* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar) {
        const QRect rect = QProxyStyle::subControlRect(control, option, subControl, widget);
        // With room around the words, and the arrow as far from the end.
        if (control == CC_ComboBox && subControl == SC_ComboBoxEditField)
            return rect.adjusted(comboBoxPadding, 0, -comboBoxPadding, 0);
        if (control == CC_ComboBox && subControl == SC_ComboBoxArrow)
            return rect.translated(option->direction == Qt::RightToLeft ? comboBoxPadding : -comboBoxPadding, 0);
        return rect;
    }
    const QRect handle = scrollHandle(*bar);
    QRect before = bar->rect;
    QRect after = bar->rect;
    if (bar->orientation == Qt::Vertical) {
        before.setBottom(handle.top() - 1);
        after.setTop(handle.bottom() + 1);
    } else {
        before.setRight(handle.left() - 1);
        after.setLeft(handle.right() + 1);
    }
    switch (subControl) {
    case SC_ScrollBarGroove:
        return bar->rect;
    case SC_ScrollBarSlider:
        return handle;
    case SC_ScrollBarSubPage:
        return before;
    case SC_ScrollBarAddPage:
        return after;
    default:
        return {};
    }
}

QRect PanelStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    switch (element) {
    case SE_LineEditContents:
        return rect.adjusted(4, 0, -4, 0);
    // The focus is shown around the control, which layouts take for as large as it is without that.
    case SE_PushButtonBevel:
    case SE_PushButtonContents:
        return withoutFocusRoom(rect);
    case SE_PushButtonLayoutItem:
        return withoutFocusRoom(option->rect);
    case SE_CheckBoxLayoutItem:
        return option->rect.adjusted(ControlPainting::focusRoom, 0, -ControlPainting::focusRoom, 0);
    case SE_CheckBoxIndicator: {
        const QRect box(option->rect.left() + ControlPainting::focusRoom,
                        option->rect.top() + (option->rect.height() - boxExtent) / 2, boxExtent, boxExtent);
        return QStyle::visualRect(option->direction, option->rect, box);
    }
    case SE_CheckBoxContents:
        return QStyle::visualRect(
            option->direction, option->rect,
            option->rect.adjusted(ControlPainting::focusRoom + boxExtent + boxSpacing, 0, 0, 0));
    default:
        return rect;
    }
}

QSize PanelStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const
{
    constexpr int around = 2 * ControlPainting::focusRoom;
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
        return size + QSize(16 + around, 6 + around);
    case CT_CheckBox:
        return QSize(size.width() + around, std::max(size.height(), boxExtent + around));
    case CT_ComboBox:
        return size + QSize(2 * comboBoxPadding, 6);
    case CT_ItemViewItem:
    case CT_LineEdit:
        return size + QSize(0, 6);
    case CT_MenuItem:
        return size + QSize(8, 4);
    case CT_TabBarTab:
        return size + QSize(0, 8);
    default:
        return size;
    }
}

int PanelStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return boxExtent;
    case PM_MenuButtonIndicator:
        return menuArrowExtent;
    case PM_CheckBoxLabelSpacing:
        return boxSpacing;
    case PM_TabBarTabHSpace:
        // All five shall be in sight, also where a screen has no more room.
        return widget && widget->window()->width() < narrowWindow ? narrowTabSpace : 2 * ControlPainting::tabPadding;
    // Of a slider: its knob, and the ring around that.
    case PM_SliderLength:
        return sliderKnobExtent;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return sliderKnobExtent + 2 * ControlPainting::focusRoom;
    case PM_HeaderMargin:
        return 5;
    case PM_ScrollBarExtent:
        return scrollBarExtent;
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabShiftHorizontal:
    case PM_TabBarTabOverlap:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int PanelStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const
{
    if (hint == SH_Widget_Animation_Duration)
        return m_motion == Motion::Reduced ? 0 : static_cast<int>(movementDuration.count());
    // The toolkit shapes the letter with the stroke alone, which tears a word of joined letters apart.
    if (hint == SH_UnderlineShortcut && QGuiApplication::isRightToLeft())
        return 0;
    // What cannot be used has a grey of its own, and no shadow.
    if (hint == SH_EtchDisabledText)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

QPixmap PanelStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const
{
    if (mode != QIcon::Disabled)
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    // The base style takes the colour away, of which icons of one colour have none.
    QPixmap faint(pixmap.size());
    faint.setDevicePixelRatio(pixmap.devicePixelRatio());
    faint.fill(Qt::transparent);
    QPainter painter(&faint);
    painter.setOpacity(0.4);
    painter.drawPixmap(0, 0, pixmap);
    return faint;
}

} // namespace LinuxDesktop
