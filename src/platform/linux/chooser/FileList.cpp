#include "platform/linux/chooser/FileList.h"

#include "platform/linux/chooser/SoftSelection.h"

#include <QDateTime>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <cerrno>
#include <system_error>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

QString wordsFor(const FolderListing& listing)
{
    switch (listing.error) {
    case 0:
        return listing.entries.empty() ? FileList::tr("This folder is empty.") : QString();
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
    const QDateTime longDate(QDate(2000, 12, 30), QTime(22, 58));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(FolderModel::Name, QHeaderView::Stretch);
    header()->setSectionResizeMode(FolderModel::Size, QHeaderView::Interactive);
    header()->setSectionResizeMode(FolderModel::Modified, QHeaderView::Interactive);
    header()->setMinimumSectionSize(widthFor(u"Mod"_s));
    header()->resizeSection(FolderModel::Size, widthFor(u"1000.0 MB"_s));
    header()->resizeSection(FolderModel::Modified, widthFor(QLocale().toString(longDate, QLocale::ShortFormat)));
}

void FileList::setListing(FolderListing listing)
{
    m_words->setText(wordsFor(listing));
    setAccessibleDescription(m_words->text());
    m_model->setEntries(std::move(listing.entries));
}

void FileList::showListing(FolderListing listing, const std::string& selected)
{
    setListing(std::move(listing));
    clearSelection();
    setCurrentIndex({});
    scrollToTop();
    if (select(selected))
        scrollTo(currentIndex(), PositionAtCenter);
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

void FileList::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex();
    const bool down = event->key() == Qt::Key_Down;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit confirmed();
    } else if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Left) {
        emit upRequested();
    } else if (event->key() == Qt::Key_Right || (down && event->modifiers() == Qt::AltModifier)) {
        if (selectionModel()->isSelected(current))
            emit entered(FileEntry(m_model->entry(current.row())));
    } else if ((down || event->key() == Qt::Key_Up) && current.isValid() && !selectionModel()->hasSelection()) {
        // Focus alone makes a row current; the first arrow key takes that row, not the one after it.
        setCurrentIndex(current);
        selectionModel()->select(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void FileList::keyboardSearch(const QString& search)
{
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

void FileList::mousePressEvent(QMouseEvent* event)
{
    QTreeView::mousePressEvent(event);
    if (!indexAt(event->position().toPoint()).isValid())
        clearSelection();
}

void FileList::showEvent(QShowEvent* event)
{
    QTreeView::showEvent(event);
    // Only now is the list's height known.
    if (currentIndex().isValid())
        scrollTo(currentIndex(), PositionAtCenter);
}

} // namespace LinuxDesktop
