#include "platform/linux/chooser/FileList.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/chooser/CurrentRow.h"
#include "platform/linux/chooser/ModifiedText.h"
#include "platform/linux/chooser/RowDelegate.h"
#include "platform/linux/chooser/SoftSelection.h"

#include <QDateTime>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

QString wordsFor(const FolderListing& listing)
{
    switch (listing.error) {
    case 0:
        if (!listing.entries.empty())
            return {};
        return listing.hidden == 0 ? FileList::tr("This folder is empty.")
                                   : FileList::tr("All that is in this folder is hidden. Ctrl+H shows it.");
    case EACCES:
    case EPERM:
        return FileList::tr("You do not have permission to see what is in this folder.");
    default:
        return FileList::tr("This folder cannot be read: %1.")
            .arg(QString::fromStdString(std::generic_category().message(listing.error)));
    }
}

} // namespace

FileList::FileList(QWidget* parent)
    : QTreeView(parent), m_model(new FolderModel(this)), m_words(new QLabel(viewport()))
{
    setModel(m_model);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setIconSize(rowIconSize);
    setItemDelegate(new RowDelegate(this));
    setContextMenuPolicy(Qt::CustomContextMenu);
    setSortingEnabled(true);
    sortByColumn(FolderModel::Name, Qt::AscendingOrder);
    sizeColumns();

    m_words->setObjectName(u"listWords"_s);
    m_words->setAlignment(Qt::AlignCenter);
    m_words->setWordWrap(true);
    m_words->setTextFormat(Qt::PlainText);
    m_words->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* layout = new QVBoxLayout(viewport());
    layout->addWidget(m_words);

    for (int column = 0; column < FolderModel::ColumnCount; ++column) {
        const QKeySequence keys(static_cast<int>(Qt::CTRL) | (Qt::Key_1 + column));
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, [this, column] {
            const bool again = header()->sortIndicatorSection() == column;
            const bool ascending = header()->sortIndicatorOrder() == Qt::AscendingOrder;
            sortByColumn(column, again && ascending ? Qt::DescendingOrder : Qt::AscendingOrder);
        });
    }

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_refreshing)
            emit selectionEdited();
    });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        // A copy: opening a folder replaces the rows.
        emit opened(FileEntry(m_model->entry(index.row())));
    });
}

void FileList::sizeColumns()
{
    const auto widthFor = [this](const QString& text) {
        return fontMetrics().horizontalAdvance(text) + 4 * fontMetrics().averageCharWidth();
    };
    // The widest of what a date may read.
    const QDateTime when(QDate(2000, 12, 30), QTime(22, 58));
    const QLocale locale;
    m_sizeWidth = widthFor(u"1000.0 MB"_s);
    m_modifiedWidth =
        std::max({widthFor(modifiedText(when, when, locale)), widthFor(modifiedText(when, when.addDays(1), locale)),
                  widthFor(modifiedText(when, when.addDays(2), locale))});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(FolderModel::Name, QHeaderView::Stretch);
    header()->setSectionResizeMode(FolderModel::Size, QHeaderView::Interactive);
    header()->setSectionResizeMode(FolderModel::Modified, QHeaderView::Interactive);
    header()->setMinimumSectionSize(widthFor(u"Mod"_s));
    header()->resizeSection(FolderModel::Size, m_sizeWidth);
    header()->resizeSection(FolderModel::Modified, m_modifiedWidth);
}

void FileList::showColumnsThatFit()
{
    const int nameWidth = fontMetrics().averageCharWidth() * 30;
    const auto fits = [&](int others) { return viewport()->width() >= nameWidth + others; };
    setColumnHidden(FolderModel::Modified, !fits(m_modifiedWidth));
    setColumnHidden(FolderModel::Size, !fits(m_modifiedWidth + m_sizeWidth));
}

void FileList::setListing(FolderListing listing)
{
    m_words->setText(wordsFor(listing));
    describe();
    m_model->setEntries(std::move(listing.entries));
}

void FileList::setFolderText(const QString& path)
{
    m_folderText = path;
    describe();
}

void FileList::describe()
{
    const QString& words = m_words->text();
    LinuxDesktop::setAccessibleDescription(*this, words.isEmpty() ? m_folderText : m_folderText + u". "_s + words);
}

void FileList::showListing(FolderListing listing, const std::string& selected)
{
    setListing(std::move(listing));
    clearSelection();
    setCurrentIndex({});
    m_currentIsMeant = false;
    scrollToTop();
    if (select(selected))
        scrollTo(currentIndex(), PositionAtCenter);
    else if (hasFocus())
        // As focus would: it is seen, and read by a screen reader.
        selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
}

std::vector<std::string> FileList::refreshListing(FolderListing listing)
{
    const std::vector<FileEntry> selected = selectedEntries();
    const std::string current = currentIndex().isValid() ? m_model->entry(currentIndex().row()).name : std::string();
    const int scrolledTo = verticalScrollBar()->value();

    m_refreshing = true;
    setListing(std::move(listing));

    std::vector<std::string> gone;
    if (const std::optional<int> row = m_model->rowOf(current))
        selectionModel()->setCurrentIndex(m_model->index(*row, 0), QItemSelectionModel::NoUpdate);
    QItemSelection still;
    for (const FileEntry& entry : selected) {
        if (const std::optional<int> row = m_model->rowOf(entry.name))
            still.select(m_model->index(*row, 0), m_model->index(*row, FolderModel::ColumnCount - 1));
        else
            gone.push_back(entry.name);
    }
    selectionModel()->select(still, QItemSelectionModel::ClearAndSelect);
    m_refreshing = false;
    verticalScrollBar()->setValue(scrolledTo);
    return gone;
}

std::vector<FileEntry> FileList::selectedEntries() const
{
    std::vector<FileEntry> entries;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        entries.push_back(m_model->entry(index.row()));
    return entries;
}

bool FileList::select(const std::string& name)
{
    const std::optional<int> row = m_model->rowOf(name);
    if (!row)
        return false;
    setCurrentIndex(m_model->index(*row, 0));
    return true;
}

std::optional<FileEntry> FileList::unselectableEntry() const
{
    const QModelIndex current = currentIndex();
    if (!m_currentIsMeant || !current.isValid() || (current.flags() & Qt::ItemIsSelectable))
        return std::nullopt;
    return m_model->entry(current.row());
}

void FileList::focusInEvent(QFocusEvent* event)
{
    QTreeView::focusInEvent(event);
    // It has had none since it was filled, so the toolkit leaves it at that.
    if (!currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
        selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
    tellCurrentRow(*this, [this] { currentChanged(currentIndex(), currentIndex()); });
}

void FileList::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex();
    const bool down = event->key() == Qt::Key_Down;
    const bool leadsToCurrent =
        down || event->key() == Qt::Key_Up || (event->key() == Qt::Key_Home && current.row() == 0);
    const bool leftToRight = isLeftToRight();
    const Qt::Key outKey = leftToRight ? Qt::Key_Left : Qt::Key_Right;
    const Qt::Key inKey = leftToRight ? Qt::Key_Right : Qt::Key_Left;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit confirmed();
    } else if (event->key() == Qt::Key_Backspace || event->key() == outKey) {
        emit upRequested();
    } else if (event->key() == inKey || (down && event->modifiers() == Qt::AltModifier)) {
        if (selectionModel()->isSelected(current))
            emit entered(FileEntry(m_model->entry(current.row())));
    } else if (leadsToCurrent && (current.flags() & Qt::ItemIsSelectable) && !selectionModel()->hasSelection()) {
        // Focus alone makes a row current; the first key takes that row, not the one after it.
        setCurrentIndex(current);
        selectionModel()->select(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        QTreeView::keyPressEvent(event);
        m_currentIsMeant = m_currentIsMeant || currentIndex() != current;
    }
}

void FileList::keyboardSearch(const QString& search)
{
    // No name has a slash in it, and "~" is how paths to one's own files start.
    if (search == u'/' || search == u'~') {
        emit pathStarted(search);
        return;
    }
    // The search starts after the current row, which nobody has gone to yet.
    if (!m_currentIsMeant && !selectionModel()->hasSelection())
        selectionModel()->clearCurrentIndex();
    // The search is in the current cell's column, which a click chose.
    if (currentIndex().column() > FolderModel::Name)
        selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(FolderModel::Name),
                                          QItemSelectionModel::NoUpdate);
    QTreeView::keyboardSearch(search);
}

void FileList::initViewItemOption(QStyleOptionViewItem* option) const
{
    QTreeView::initViewItemOption(option);
    softenSelection(*this, *option);
}

void FileList::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    // Else the current row shows the focus.
    if (!hasFocus() || currentIndex().isValid())
        return;
    QPainter painter(viewport());
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_KeyboardFocusChange;
    option.rect = viewport()->rect().adjusted(1, 1, -1, -1);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void FileList::mousePressEvent(QMouseEvent* event)
{
    QTreeView::mousePressEvent(event);
    m_currentIsMeant = indexAt(event->position().toPoint()).isValid();
    if (!m_currentIsMeant)
        clearSelection();
}

void FileList::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    showColumnsThatFit();
}

void FileList::showEvent(QShowEvent* event)
{
    QTreeView::showEvent(event);
    // Only now is the list's height known.
    if (currentIndex().isValid())
        scrollTo(currentIndex(), PositionAtCenter);
}

} // namespace LinuxDesktop
