#include "platform/linux/scenes/CollectionGrid.h"

#include "platform/FatalError.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/scenes/WidgetScene.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QScrollArea>
#include <QStyle>

#include <algorithm>

namespace LinuxDesktop {

namespace {

/// What shows above and below a card that was scrolled to.
constexpr int scrollMargin = 20;

QAbstractButton* controlOf(const QWidget& card)
{
    const auto buttons = card.findChildren<QAbstractButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [](const QAbstractButton* button) {
        return button->isEnabled() && !button->isHidden();
    });
    return found == buttons.end() ? nullptr : *found;
}

bool isPlain(const QKeyEvent& pressed)
{
    return (pressed.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// Scrolling under the pointer would take a control away from it in the middle of a click, and a window that is
/// come back to is to look as it was left.
bool isByKeyboard(const QFocusEvent& event)
{
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
           event.reason() == Qt::ShortcutFocusReason;
}

} // namespace

CollectionGrid::CollectionGrid(QWidget* parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleRole(*this, QAccessible::List);
}

CollectionGrid::~CollectionGrid()
{
    // The cards go with their items, and say goodbye to this object while it is whole.
    m_cards.clear();
    m_items.clear();
}

void CollectionGrid::reloadData()
{
    for (Item& item : m_items)
        item.isFree = true;
    m_cards.clear();
    const std::ptrdiff_t count =
        m_dataSource ? m_dataSource->collectionView_numberOfItemsInSection(*this, 0) : std::ptrdiff_t{0};
    for (std::ptrdiff_t index = 0; index < count; ++index) {
        const NS::CollectionViewItem* item =
            m_dataSource->collectionView_itemForRepresentedObjectAtIndexPath(*this, {.item = index, .section = 0});
        if (!item)
            NS::fatalError("a collection has no item " + std::to_string(index));
        m_cards.append(&WidgetScene::rootOf(*item));
    }
    for (const Item& item : m_items)
        WidgetScene::rootOf(*item.controller).setVisible(!item.isFree);
    layOutCards();
    updateGeometry();
}

void CollectionGrid::setCollectionViewLayout(const NS::CollectionViewFlowLayout& layout)
{
    m_layout = layout;
    layOutCards();
    updateGeometry();
}

void CollectionGrid::setBackgroundColors(const std::vector<NS::Color>& colors)
{
    // Clear is the one colour that there is.
    setAutoFillBackground(colors.empty());
}

NS::CollectionViewItem& CollectionGrid::makeItemWithIdentifier_forIndexPath(std::string_view identifier,
                                                                            NS::IndexPath)
{
    // The first one that is free is the one that showed at this place, so that a control keeps the focus.
    const auto free = std::find_if(m_items.begin(), m_items.end(),
                                   [&](const Item& item) { return item.isFree && item.identifier == identifier; });
    if (free == m_items.end())
        return newItem(identifier);
    free->isFree = false;
    return *free->controller;
}

NS::CollectionViewItem& CollectionGrid::newItem(std::string_view identifier)
{
    std::shared_ptr<NS::CollectionViewItem> made = m_makeItem ? m_makeItem(identifier) : nullptr;
    if (!made)
        NS::fatalError("there is no scene \"" + std::string(identifier) + "\" for an item");
    QWidget& card = WidgetScene::rootOf(*made);
    card.setParent(this);
    // Cards come into being after the rest of the window, and are walked through where the grid stands. What takes
    // no focus has no place in that order.
    setFocusPolicy(Qt::TabFocus);
    for (auto* button : card.findChildren<QAbstractButton*>()) {
        button->installEventFilter(this);
        QWidget::setTabOrder(m_lastControl, button);
        m_lastControl = button;
    }
    setFocusPolicy(Qt::NoFocus);
    return *m_items.emplace_back(Item{std::string(identifier), std::move(made)}).controller;
}

QSize CollectionGrid::sizeHint() const
{
    const int width = qRound(2 * m_layout.itemSize.width + m_layout.sectionInset.left + m_layout.sectionInset.right);
    return {width, heightForWidth(width)};
}

QSize CollectionGrid::minimumSizeHint() const
{
    return {qRound(m_layout.itemSize.width), 0};
}

int CollectionGrid::heightForWidth(int width) const
{
    return qRound(geometryFor(width).height(static_cast<int>(m_cards.size())));
}

void CollectionGrid::layOutCards()
{
    const FlowGeometry geometry = geometryFor(width());
    for (int index = 0; index < m_cards.size(); ++index) {
        const NS::Rect place = geometry.item(index);
        const QRect card(qRound(place.x), qRound(place.y), qRound(place.size.width), qRound(place.size.height));
        m_cards.at(index)->setGeometry(QStyle::visualRect(layoutDirection(), rect(), card));
    }
}

qsizetype CollectionGrid::cardWith(const QObject* widget) const
{
    const auto found = std::find_if(m_cards.begin(), m_cards.end(), [&](const QWidget* card) {
        for (const QObject* each = widget; each; each = each->parent()) {
            if (each == card)
                return true;
        }
        return false;
    });
    return found == m_cards.end() ? -1 : found - m_cards.begin();
}

qsizetype CollectionGrid::cardAfterKey(int key, qsizetype card) const
{
    const qsizetype line = geometryFor(width()).columns();
    const double step = m_layout.itemSize.height + m_layout.minimumLineSpacing;
    const QScrollArea* area = scrollArea();
    const qsizetype page =
        line * std::max(1, static_cast<int>((area ? area->viewport()->height() : height()) / step));
    const qsizetype last = m_cards.size() - 1;
    const auto downBy = [&](qsizetype distance) {
        // From the line above a last one that is not full, the last card is the nearest.
        return card / line == last / line ? card : std::min(card + distance, last);
    };
    const auto upBy = [&](qsizetype distance) { return card >= distance ? card - distance : card % line; };
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const qsizetype toTheRight = isMirrored ? card - 1 : card + 1;
    const qsizetype toTheLeft = isMirrored ? card + 1 : card - 1;
    switch (key) {
    case Qt::Key_Left:
        return std::clamp<qsizetype>(toTheLeft, 0, last);
    case Qt::Key_Right:
        return std::clamp<qsizetype>(toTheRight, 0, last);
    case Qt::Key_Up:
        return upBy(line);
    case Qt::Key_Down:
        return downBy(line);
    case Qt::Key_PageUp:
        return upBy(page);
    case Qt::Key_PageDown:
        return downBy(page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return -1;
    }
}

void CollectionGrid::focusCard(qsizetype card)
{
    if (QWidget* control = controlOf(*m_cards.at(card)))
        control->setFocus(Qt::TabFocusReason);
}

void CollectionGrid::scrollToCard(qsizetype card)
{
    if (QScrollArea* area = scrollArea())
        area->ensureWidgetVisible(m_cards.at(card), 0, scrollMargin);
}

QScrollArea* CollectionGrid::scrollArea() const
{
    const QWidget* viewport = parentWidget();
    return viewport ? qobject_cast<QScrollArea*>(viewport->parentWidget()) : nullptr;
}

bool CollectionGrid::eventFilter(QObject* watched, QEvent* event)
{
    const qsizetype card = cardWith(watched);
    if (card < 0)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress && isPlain(*static_cast<QKeyEvent*>(event))) {
        const qsizetype target = cardAfterKey(static_cast<QKeyEvent*>(event)->key(), card);
        if (target >= 0) {
            focusCard(target);
            return true;
        }
    } else if (event->type() == QEvent::FocusIn && isByKeyboard(*static_cast<QFocusEvent*>(event))) {
        scrollToCard(card);
    }
    return QWidget::eventFilter(watched, event);
}

void CollectionGrid::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOutCards();
}

} // namespace LinuxDesktop
