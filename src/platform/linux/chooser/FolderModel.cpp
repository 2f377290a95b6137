#include "platform/linux/chooser/FolderModel.h"

#include "platform/linux/chooser/ModifiedText.h"
#include "platform/linux/text/FileNameText.h"
#include "platform/linux/text/SizeText.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <compare>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

QCollator naturalOrder()
{
    // The C locale would compare code units, and "10" before "9".
    const QLocale locale = QLocale().collation();
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

QVariant alignment(int column)
{
    const Qt::Alignment sideways = column == FolderModel::Name ? Qt::AlignLeft : Qt::AlignRight;
    return (sideways | Qt::AlignVCenter).toInt();
}

} // namespace

FolderModel::FolderModel(QObject* parent) : QAbstractTableModel(parent), m_collator(naturalOrder()) {}

void FolderModel::setEntries(std::vector<FileEntry> entries)
{
    // A folder lists its items in the same order as long as it is unchanged, but rows are sorted; so both are
    // compared in the order of their names.
    std::vector<const FileEntry*> shown;
    shown.reserve(m_rows.size());
    for (const Row& row : m_rows)
        shown.push_back(&row.entry);
    std::ranges::sort(shown, {}, [](const FileEntry* entry) -> const std::string& { return entry->name; });
    std::ranges::sort(entries, {}, &FileEntry::name);
    if (std::ranges::equal(shown, entries, [](const FileEntry* a, const FileEntry& b) { return *a == b; }))
        return;

    beginResetModel();
    m_rows.clear();
    m_rows.reserve(entries.size());
    for (FileEntry& entry : entries) {
        const QString text = fileNameText(entry.name);
        m_rows.push_back({std::move(entry), text, m_collator.sortKey(text)});
    }
    sortRows();
    endResetModel();
}

std::optional<int> FolderModel::rowOf(const std::string& name) const
{
    const auto found =
        std::ranges::find(m_rows, name, [](const Row& row) -> const std::string& { return row.entry.name; });
    if (found == m_rows.end())
        return {};
    return static_cast<int>(found - m_rows.begin());
}

int FolderModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FolderModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString FolderModel::cellText(const Row& row, int column) const
{
    const FileEntry& entry = row.entry;
    if (column == Name)
        return row.text;
    if (entry.kind == FileEntry::Kind::BrokenLink)
        return {};
    if (column == Size)
        return entry.kind == FileEntry::Kind::Folder ? QString() : sizeText(static_cast<std::uint64_t>(entry.size));
    return entry.modified == 0
               ? QString()
               : modifiedText(QDateTime::fromSecsSinceEpoch(entry.modified), QDateTime::currentDateTime(), QLocale());
}

QString FolderModel::kindText(const Row& row) const
{
    switch (row.entry.kind) {
    case FileEntry::Kind::Folder:
        return row.entry.isLink ? tr("Link to a folder") : tr("Folder");
    case FileEntry::Kind::File: {
        if (row.entry.isLink)
            return tr("Link to a file");
        const QString kind = m_icons.kindName(row.text);
        return kind.isEmpty() ? tr("File") : kind;
    }
    case FileEntry::Kind::BrokenLink:
        break;
    }
    return tr("Link to something that is not there");
}

/// Also where nothing is to be seen: folders have no size.
QString FolderModel::spokenText(const Row& row, int column) const
{
    const QString shown = cellText(row, column);
    if (!shown.isEmpty())
        return shown;
    return column == Size ? kindText(row) : tr("Not known");
}

QString FolderModel::description(const Row& row) const
{
    QStringList parts = {kindText(row), cellText(row, Size), cellText(row, Modified)};
    parts.removeAll(QString());
    return parts.join(tr(", ", "between a file's kind, size and date"));
}

QString FolderModel::tooltip(const Row& row, int column) const
{
    if (column == Modified && row.entry.modified != 0)
        return exactModifiedText(QDateTime::fromSecsSinceEpoch(row.entry.modified), QLocale());
    // Marked as rich text, so that a name with angle brackets is not taken for it.
    return column == Name ? u"<qt>"_s + row.text.toHtmlEscaped() + u"</qt>"_s : QString();
}

QVariant FolderModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return cellText(row, index.column());
    case Qt::DecorationRole:
        return index.column() == Name ? QVariant(m_icons.iconFor(row.entry, row.text)) : QVariant();
    case Qt::ToolTipRole:
        return tooltip(row, index.column());
    case Qt::AccessibleTextRole:
        return spokenText(row, index.column());
    case Qt::AccessibleDescriptionRole:
        return index.column() == Name ? QVariant(description(row)) : QVariant();
    case Qt::TextAlignmentRole:
        return alignment(index.column());
    default:
        return {};
    }
}

QVariant FolderModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("Name");
    case Size:
        return tr("Size");
    default:
        return tr("Modified");
    }
}

Qt::ItemFlags FolderModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    // Rows that cannot be selected are enabled, so that the arrow keys reach them and a screen reader reads them.
    const Qt::ItemFlags reached = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    const FileEntry::Kind kind = entry(index.row()).kind;
    if (kind == FileEntry::Kind::BrokenLink || (kind == FileEntry::Kind::File && !m_filesSelectable))
        return reached;
    return reached | Qt::ItemIsSelectable;
}

void FolderModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;

    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<std::string> names;
    for (const QModelIndex& index : before)
        names.push_back(entry(index.row()).name);
    sortRows();
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after.push_back(index(rowOf(names[static_cast<std::size_t>(i)]).value_or(0), before[i].column()));
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

void FolderModel::sortRows()
{
    const auto byName = [](const Row& a, const Row& b) -> std::strong_ordering {
        if (const int order = a.key.compare(b.key); order != 0)
            return order <=> 0;
        return a.entry.name <=> b.entry.name;
    };
    const auto byColumn = [&](const Row& a, const Row& b) -> std::strong_ordering {
        if (m_sortColumn == Size && a.entry.size != b.entry.size)
            return a.entry.size <=> b.entry.size;
        if (m_sortColumn == Modified && a.entry.modified != b.entry.modified)
            return a.entry.modified <=> b.entry.modified;
        return byName(a, b);
    };
    std::ranges::sort(m_rows, [&](const Row& a, const Row& b) {
        const bool folderA = a.entry.kind == FileEntry::Kind::Folder;
        const bool folderB = b.entry.kind == FileEntry::Kind::Folder;
        if (folderA != folderB)
            return folderA;
        return m_sortOrder == Qt::AscendingOrder ? std::is_lt(byColumn(a, b)) : std::is_lt(byColumn(b, a));
    });
}

} // namespace LinuxDesktop
