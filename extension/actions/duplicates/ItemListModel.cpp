#include "extension/actions/duplicates/ItemListModel.h"

#include "extension/actions/duplicates/ItemTexts.h"
#include "platform/linux/text/FileNameText.h"
#include "platform/linux/text/SizeText.h"

#include <algorithm>

namespace MenuExtension::Duplicates {

using LinuxDesktop::sizeText;

namespace {

constexpr int rowsAtOnce = 500;

} // namespace

ItemListModel::ItemListModel(Groups& groups, const Presentation& presentation, QObject* parent)
    : QAbstractTableModel(parent), m_groups(groups), m_presentation(presentation)
{}

void ItemListModel::setGroup(std::optional<GroupNumber> group)
{
    std::vector<ItemNumber> items = group ? m_groups.itemsOf(*group) : std::vector<ItemNumber>();
    if (group == m_group && items == m_items)
        return refresh();
    beginResetModel();
    m_group = group;
    m_items = std::move(items);
    m_rows = static_cast<int>(std::min<std::size_t>(m_items.size(), rowsAtOnce));
    findProposal();
    endResetModel();
}

void ItemListModel::findProposal()
{
    m_proposed = -1;
    if (!m_presentation.proposal || m_items.empty())
        return;
    std::vector<Item> items;
    for (const ItemNumber number : m_items)
        items.push_back(m_groups.item(number));
    m_proposed = static_cast<int>(std::ranges::find(m_items, m_groups.bestOf(*m_group)) - m_items.begin());
    std::swap(items.front(), items[static_cast<std::size_t>(m_proposed)]);
    m_why = m_presentation.proposal->why(items);
}

void ItemListModel::refresh()
{
    if (m_rows > 0)
        emit dataChanged(index(0, 0), index(m_rows - 1, columnCount() - 1));
}

void ItemListModel::setChangeable(bool changeable)
{
    m_isChangeable = changeable;
    refresh();
}

int ItemListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int ItemListModel::columnCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return FirstOwnColumn + static_cast<int>(m_presentation.columns.size()) + (m_presentation.proposal ? 1 : 0);
}

bool ItemListModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && static_cast<std::size_t>(m_rows) < m_items.size();
}

void ItemListModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    const int added = std::min(static_cast<int>(m_items.size()) - m_rows, rowsAtOnce);
    beginInsertRows({}, m_rows, m_rows + added - 1);
    m_rows += added;
    endInsertRows();
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const ItemNumber number = m_items[static_cast<std::size_t>(index.row())];
    if (role == Qt::CheckStateRole && index.column() == NameColumn)
        return m_groups.isChosen(number) ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::DisplayRole) {
        const QString shown = text(m_groups.item(number), index.row(), index.column());
        // A path begins on the left in every language.
        return index.column() == FolderColumn ? u'\u2066' + shown + u'\u2069' : shown;
    }
    if (role == Qt::AccessibleTextRole) {
        const QString shown = text(m_groups.item(number), index.row(), index.column());
        return shown.isEmpty() ? tr("Not the best") : shown;
    }
    if (role == Qt::ToolTipRole)
        return LinuxDesktop::fileNameText(m_groups.item(number).path);
    if (role == Qt::TextAlignmentRole && index.column() == SizeColumn)
        return static_cast<int>(Qt::AlignTrailing | Qt::AlignVCenter);
    return {};
}

QString ItemListModel::text(const Item& item, int row, int column) const
{
    switch (column) {
    case NameColumn:
        return nameText(item);
    case FolderColumn:
        return folderText(item);
    case SizeColumn:
        return sizeText(item.state.size);
    case DateColumn:
        return dateText(item);
    default:
        break;
    }
    const auto own = static_cast<std::size_t>(column - FirstOwnColumn);
    if (own < m_presentation.columns.size())
        return m_presentation.columns[own].text(item);
    return row == m_proposed ? m_why : QString();
}

QVariant ItemListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Name");
    case FolderColumn:
        return tr("Folder");
    case SizeColumn:
        return tr("Size");
    case DateColumn:
        return tr("Changed");
    default:
        break;
    }
    const auto own = static_cast<std::size_t>(section - FirstOwnColumn);
    return own < m_presentation.columns.size() ? m_presentation.columns[own].title : tr("Best Because");
}

Qt::ItemFlags ItemListModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    if (index.column() == NameColumn && m_isChangeable)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool ItemListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != NameColumn || !m_isChangeable)
        return false;
    const ItemNumber number = m_items[static_cast<std::size_t>(index.row())];
    if (!m_groups.setChosen(number, value.toInt() == Qt::Checked)) {
        emit refused();
        return false;
    }
    emit dataChanged(index, index, {Qt::CheckStateRole});
    emit chosen();
    return true;
}

} // namespace MenuExtension::Duplicates
