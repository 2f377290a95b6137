#include "platform/linux/scenes/RowList.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/look/ControlPainting.h"
#include "platform/linux/scenes/Label.h"
#include "platform/linux/scenes/RowWidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>
#include <optional>
#include <utility>

namespace LinuxDesktop {

namespace {

bool isByPerson(const QFocusEvent& event)
{
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::OtherFocusReason &&
           event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason;
}

} // namespace

RowList::RowList(QWidget* parent) : QAbstractScrollArea(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    // The sheet is painted below the rows.
    setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    viewport()->setAutoFillBackground(false);
}

RowList::~RowList() = default;

QList<RowWidget*> RowList::rowsInSight() const
{
    QList<RowWidget*> rows;
    for (const auto& [row, widget] : m_rows)
        rows.append(widget);
    return rows;
}

QSize RowList::sizeHint() const
{
    return {320, std::min(maximumHeight(), m_loaded ? QWIDGETSIZE_MAX : 240)};
}

void RowList::reloadData()
{
    const bool wasLoaded = std::exchange(m_loaded, true);
    // What comes into sight with its rows is no news.
    const bool isNews = m_wasInSight && parentWidget()->isVisible();
    const QWidget* focused = window()->focusWidget();
    const bool hadFocus = focused && (focused == this || isAncestorOf(focused));
    const int rowsBefore = m_rowCount;
    const bool wasOnView = window()->isVisible() && wasLoaded;
    m_rowCount = m_dataSource ? static_cast<int>(m_dataSource->numberOfRowsInTableView(*this)) : 0;
    // They are added at the end.
    m_firstNewRow = wasOnView && m_rowCount > rowsBefore ? rowsBefore : -1;
    setSelectedRow(std::min(m_selectedRow, m_rowCount - 1));
    showWhatThereIs();
    fitHeight();
    updateScrollRange();
    layOutRows(Refill::AllRows);
    setCurrentRow(m_currentRow);
    // The row that had the focus or was selected may have gone, and another is current in its place. The keyboard is
    // on that row then, and not on a button of it.
    const bool lostRow = m_rowCount < rowsBefore || window()->focusWidget() == this;
    if (lostRow && m_rowCount > 0 && (hadFocus || m_selectedRow >= 0) && m_rows.contains(m_currentRow))
        moveTo(m_currentRow, 0, Qt::OtherFocusReason);
    if (isNews && m_rowCount > rowsBefore) {
        m_added = tr("Added: %1").arg(typedTitleOf(m_rowCount - 1));
        QMetaObject::invokeMethod(this, &RowList::tellAdded, Qt::QueuedConnection);
    }
}

/// Once the window is come back to, and after what has the keyboard there: that is read over all that is said before.
void RowList::tellAdded()
{
    if (isActiveWindow())
        announce(*this, std::exchange(m_added, {}));
}

NS::TableCellView* RowList::makeViewWithIdentifier_owner(std::string_view identifier, NS::SceneObject*)
{
    RowWidget* row = nullptr;
    if (m_spareRows.empty()) {
        row = newRow(identifier);
        if (!row)
            return nullptr;
    } else {
        row = m_spareRows.back();
        m_spareRows.pop_back();
    }
    m_handedOut.push_back(row);
    return row->cell();
}

RowWidget* RowList::newRow(std::string_view identifier)
{
    std::unique_ptr<RowWidget> made = m_makeRow ? m_makeRow(identifier) : nullptr;
    if (!made)
        return nullptr;
    RowWidget* row = made.release();
    const QStringList hidden = property("hiddenInRows").toString().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& name : hidden) {
        if (auto* part = row->findChild<QWidget*>(name))
            part->hide();
    }
    row->setParent(viewport());
    row->prepare();
    if (auto* title = m_showsFolders ? row->findChild<Label*>() : nullptr)
        title->setShowsLastName(true);
    row->installEventFilter(this);
    // Rows come into being after the rest of the window, and are walked through where the list stands.
    QWidget* before = this;
    for (QWidget* stop : row->stops()) {
        stop->installEventFilter(this);
        QWidget::setTabOrder(before, stop);
        before = stop;
    }
    return row;
}

void RowList::fillRow(int row)
{
    // The row view that showed this row before is the one to be used again, so that it keeps the focus.
    if (const auto shown = m_rows.find(row); shown != m_rows.end()) {
        m_spareRows.push_back(shown->second);
        m_rows.erase(shown);
    }
    m_handedOut.clear();
    const NS::TableCellView* cell =
        m_delegate ? m_delegate->tableView_viewForTableColumn_row(*this, nullptr, row) : nullptr;
    for (RowWidget* widget : m_handedOut) {
        if (cell && widget->cell() == cell)
            m_rows[row] = widget;
        else
            m_spareRows.push_back(widget);
    }
    if (const auto filled = m_rows.find(row); m_showsFolders && filled != m_rows.end())
        filled->second->showFolder();
    m_handedOut.clear();
    for (RowWidget* spare : m_spareRows)
        spare->hide();
}

void RowList::retireRow(int row)
{
    RowWidget* widget = m_rows.at(row);
    m_rows.erase(row);
    // Scrolling a row away must not send the focus to another part of the window.
    // The window's own, for a question that is just being answered may have the keyboard.
    const QWidget* focused = window()->focusWidget();
    const bool hadFocus = focused && widget->isAncestorOf(focused);
    widget->setCurrent(false);
    widget->setPressed(false);
    if (hadFocus)
        setFocus(Qt::OtherFocusReason);
    widget->hide();
    m_spareRows.push_back(widget);
}

void RowList::layOutRows(Refill refill)
{
    if (!m_loaded)
        return;
    if (!isVisible()) {
        m_stale = m_stale || refill == Refill::AllRows;
        return;
    }
    if (std::exchange(m_stale, false))
        refill = Refill::AllRows;
    const int height = rowHeight();
    if (height <= 0)
        return;
    const int top = verticalScrollBar()->value();
    const int first = top / height;
    const int last = std::min(m_rowCount - 1, (top + std::max(viewport()->height(), 1) - 1) / height);

    std::vector<int> leaving;
    for (const auto& [row, widget] : m_rows) {
        if (row < first || row > last)
            leaving.push_back(row);
    }
    for (const int row : leaving)
        retireRow(row);

    for (int row = first; row <= last; ++row) {
        const bool isNew = m_firstNewRow >= 0 && row >= m_firstNewRow && !m_rows.contains(row);
        if (refill == Refill::AllRows || !m_rows.contains(row))
            fillRow(row);
        const auto shown = m_rows.find(row);
        if (shown == m_rows.end())
            continue;
        RowWidget* widget = shown->second;
        widget->setGeometry(0, row * height - top, viewport()->width(), height);
        showState(*widget, row);
        widget->show();
        if (isNew)
            widget->appear();
    }
    makeSpareRow(last);
    // The list itself takes the focus only while its current row is out of sight.
    setFocusPolicy(m_rows.contains(m_currentRow) ? Qt::NoFocus : Qt::TabFocus);
}

/// Once the first and the last row in sight show in part only, there is one row more in sight than now.
void RowList::makeSpareRow(int last)
{
    const int mostInSight = std::min(m_rowCount, (viewport()->height() - 1) / rowHeight() + 2);
    const auto made = static_cast<int>(m_rows.size() + m_spareRows.size());
    if (made >= mostInSight || last + 1 >= m_rowCount || m_rows.empty())
        return;
    fillRow(last + 1);
    if (m_rows.contains(last + 1))
        retireRow(last + 1);
}

void RowList::updateScrollRange()
{
    const int height = rowHeight();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(std::max(height, 1));
    verticalScrollBar()->setRange(0, std::max(0, m_rowCount * height - viewport()->height()));
}

void RowList::fitHeight()
{
    if (m_rowCount == 0)
        return;
    const qint64 rows = qint64{m_rowCount} * rowHeight() + qint64{2} * frameWidth();
    setMaximumHeight(static_cast<int>(std::min<qint64>(rows, QWIDGETSIZE_MAX)));
    updateGeometry();
}

void RowList::showWhatThereIs()
{
    auto* instead = m_emptyState.isEmpty() ? nullptr : parentWidget()->findChild<QWidget*>(m_emptyState);
    if (!instead)
        return;
    const bool isEmpty = m_rowCount == 0;
    for (const QString& name : m_hiddenWhenEmpty.split(u' ', Qt::SkipEmptyParts))
        parentWidget()->findChild<QWidget*>(name)->setHidden(isEmpty);
    setHidden(isEmpty);
    instead->setVisible(isEmpty);
}

int RowList::rowHeight()
{
    // Every row is as high as the first.
    if (m_rowHeight == 0 && m_rowCount > 0) {
        if (m_rows.empty())
            fillRow(0);
        if (!m_rows.empty()) {
            const RowWidget& first = *m_rows.begin()->second;
            // What was asked of it with another font is forgotten.
            first.layout()->activate();
            m_rowHeight = std::max(first.sizeHint().height(), first.minimumHeight());
        }
    }
    return m_rowHeight;
}

int RowList::rowOf(const RowWidget& widget) const
{
    const auto shown =
        std::find_if(m_rows.begin(), m_rows.end(), [&](const auto& entry) { return entry.second == &widget; });
    return shown == m_rows.end() ? -1 : shown->first;
}

void RowList::setCurrentRow(int row)
{
    m_currentRow = std::clamp(row, 0, std::max(m_rowCount - 1, 0));
    for (const auto& [shownRow, widget] : m_rows)
        showState(*widget, shownRow);
    setFocusPolicy(m_rows.contains(m_currentRow) ? Qt::NoFocus : Qt::TabFocus);
}

void RowList::selectRow(int row)
{
    if (!m_selectable || row == m_selectedRow)
        return;
    setSelectedRow(row);
    for (const auto& [shownRow, widget] : m_rows)
        showState(*widget, shownRow);
}

void RowList::setSelectedRow(int row)
{
    if (std::exchange(m_selectedRow, row) != row)
        emit selectionChanged(row >= 0);
}

void RowList::showState(RowWidget& widget, int row) const
{
    if (widget.isCurrent() != (row == m_currentRow))
        widget.setCurrent(row == m_currentRow);
    widget.setLast(row == m_rowCount - 1);
    widget.setSelected(m_selectable ? std::optional(row == m_selectedRow) : std::nullopt);
}

void RowList::moveTo(int row, qsizetype control, Qt::FocusReason reason)
{
    setCurrentRow(row);
    const int height = rowHeight();
    const int top = m_currentRow * height;
    if (top < verticalScrollBar()->value())
        verticalScrollBar()->setValue(top);
    else if (top + height > verticalScrollBar()->value() + viewport()->height())
        verticalScrollBar()->setValue(top + height - viewport()->height());
    const auto shown = m_rows.find(m_currentRow);
    if (shown == m_rows.end())
        return;
    const QList<QWidget*>& stops = shown->second->stops();
    stops.at(std::clamp<qsizetype>(control, 0, stops.size() - 1))->setFocus(reason);
}

bool RowList::handleKey(const QKeyEvent& pressed, qsizetype control)
{
    std::optional<int> row = rowThatKeyLeadsTo(pressed);
    // Who goes elsewhere has found what was typed.
    if (row)
        m_typeAhead = {};
    else
        row =
            m_typeAhead.find(pressed, m_currentRow, m_rowCount, [this](int number) { return typedTitleOf(number); });
    if (row) {
        moveTo(*row, control);
        selectRow(m_currentRow);
    }
    return row.has_value();
}

/// It may lie before the first row or after the last.
std::optional<int> RowList::rowThatKeyLeadsTo(const QKeyEvent& pressed)
{
    const int page = std::max(1, viewport()->height() / std::max(rowHeight(), 1) - 1);
    switch (pressed.key()) {
    case Qt::Key_Up:
        return m_currentRow - 1;
    case Qt::Key_Down:
        return m_currentRow + 1;
    case Qt::Key_PageUp:
        return m_currentRow - page;
    case Qt::Key_PageDown:
        return m_currentRow + page;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return m_rowCount - 1;
    default:
        return std::nullopt;
    }
}

QString RowList::typedTitleOf(int row)
{
    return m_delegate
               ? QString::fromStdString(m_delegate->tableView_typeSelectStringForTableColumn_row(*this, nullptr, row))
               : QString();
}

/// Whether a row that gets the focus is selected.
bool RowList::selects(const QFocusEvent& event) const
{
    // Assistive programs move the focus for a person too; then a selection follows, but none is made.
    return isByPerson(event) || (m_selectedRow >= 0 && event.reason() == Qt::OtherFocusReason);
}

/// Whatever way the user came to a row, it is the current one from then on.
void RowList::comeToRow(int row, const QEvent& event)
{
    setCurrentRow(row);
    // A window that is come back to selects nothing by itself.
    if (event.type() != QEvent::FocusIn || selects(static_cast<const QFocusEvent&>(event)))
        selectRow(row);
}

/// What the pointer does on a row beside its controls. Whether that is all that becomes of it.
bool RowList::handlePointer(RowWidget& row, const QMouseEvent& event)
{
    QAbstractButton* const box = m_selectable ? nullptr : row.checkBox();
    const bool isLeft = event.button() == Qt::LeftButton;
    row.setPressed(isLeft && event.type() != QEvent::MouseButtonRelease && (box || m_selectable));
    if (event.type() == QEvent::MouseButtonRelease) {
        if (!box || m_pressedRow < 0 || event.button() != Qt::LeftButton)
            return false;
        box->setDown(false);
        const bool isOnItStill = m_pressedRow == rowOf(row) && row.rect().contains(event.position().toPoint());
        m_pressedRow = -1;
        if (isOnItStill)
            box->click();
        return true;
    }
    row.stops().front()->setFocus(Qt::MouseFocusReason);
    if (box && event.button() == Qt::LeftButton) {
        m_pressedRow = rowOf(row);
        box->setDown(true);
    }
    // Not to be taken for a click below the rows.
    return true;
}

bool RowList::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        QMetaObject::invokeMethod(this, &RowList::tellAdded, Qt::QueuedConnection);
    if (event->type() != QEvent::Paint)
        return QAbstractScrollArea::event(event);
    // By now the list has its height, and what is scrolled to afterwards was there before.
    m_firstNewRow = -1;
    QPainter painter(this);
    ControlPainting::drawSheet(rect(), palette(), painter);
    return true;
}

bool RowList::eventFilter(QObject* watched, QEvent* event)
{
    auto* row = qobject_cast<RowWidget*>(watched);
    const bool isBeside = row;
    if (!row && watched->parent())
        row = qobject_cast<RowWidget*>(watched->parent());
    const int number = row ? rowOf(*row) : -1;
    if (number < 0)
        return QAbstractScrollArea::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::KeyPress:
        // One that its control leaves alone comes by once more on its way up.
        if (auto* stop = static_cast<QWidget*>(watched);
            stop->hasFocus() && handleKey(*static_cast<QKeyEvent*>(event), row->stops().indexOf(stop)))
            return true;
        break;
    case QEvent::MouseButtonDblClick:
        // Pressing a row's button may take the row away, and then the second press would be for the row below.
        if (qobject_cast<QPushButton*>(watched))
            return true;
        [[fallthrough]];
    case QEvent::MouseButtonPress:
        comeToRow(number, *event);
        [[fallthrough]];
    case QEvent::MouseButtonRelease:
        if (isBeside && handlePointer(*row, *static_cast<QMouseEvent*>(event)))
            return true;
        break;
    case QEvent::FocusIn:
        comeToRow(number, *event);
        break;
    default:
        break;
    }
    return QAbstractScrollArea::eventFilter(watched, event);
}

void RowList::mousePressEvent(QMouseEvent* event)
{
    QAbstractScrollArea::mousePressEvent(event);
    // Below the last row.
    selectRow(-1);
}

void RowList::keyPressEvent(QKeyEvent* event)
{
    // Those that a row leaves alone come by here, and would scroll it away.
    event->setAccepted(m_rowCount > 0 && hasFocus() && handleKey(*event, 0));
}

void RowList::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    if (m_rowCount == 0 || event->reason() == Qt::OtherFocusReason)
        return;
    // A window that is come back to scrolls nothing by itself.
    if (isByPerson(*event) || m_rows.contains(m_currentRow))
        moveTo(m_currentRow, event->reason() == Qt::BacktabFocusReason ? 1 : 0, event->reason());
}

void RowList::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollRange();
    layOutRows(Refill::NewRows);
}

void RowList::scrollContentsBy(int, int)
{
    layOutRows(Refill::NewRows);
}

void RowList::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    if (!m_loaded)
        reloadData();
    else
        layOutRows(Refill::NewRows);
    QMetaObject::invokeMethod(
        this, [this] { m_wasInSight = true; }, Qt::QueuedConnection);
}

void RowList::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_rowHeight = 0;
        fitHeight();
        updateScrollRange();
        layOutRows(Refill::NewRows);
    }
}

} // namespace LinuxDesktop
