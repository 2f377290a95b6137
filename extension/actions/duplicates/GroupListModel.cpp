#include "extension/actions/duplicates/GroupListModel.h"

#include "extension/actions/duplicates/ItemTexts.h"
#include "platform/linux/text/SizeText.h"

#include <algorithm>

namespace MenuExtension::Duplicates {

using LinuxDesktop::sizeText;

namespace {

constexpr int rowsAtOnce = 500;

} // namespace

GroupListModel::GroupListModel(const Groups& groups, const Presentation& presentation, QObject* parent)
    : QAbstractListModel(parent), m_groups(groups), m_presentation(presentation)
{}

/// Rows that stay what they are stay as they are: a person may be reading them, or hearing them read.
void GroupListModel::setGroups(std::vector<GroupNumber> groups)
{
    const auto rows = static_cast<std::size_t>(m_rows);
    const auto [end, ignored] =
        std::mismatch(m_shown.begin(), m_shown.begin() + m_rows, groups.begin(), groups.end());
    const auto same = static_cast<int>(end - m_shown.begin());
    const auto wanted = static_cast<int>(std::min(groups.size(), std::max<std::size_t>(rows, rowsAtOnce)));
    if (same < m_rows) {
        beginRemoveRows({}, same, m_rows - 1);
        m_rows = same;
        endRemoveRows();
    }
    m_shown = std::move(groups);
    if (same < wanted) {
        beginInsertRows({}, same, wanted - 1);
        m_rows = wanted;
        endInsertRows();
    }
    refresh();
}

void GroupListModel::refresh()
{
    if (m_rows > 0)
        emit dataChanged(index(0), index(m_rows - 1));
}

int GroupListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

bool GroupListModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && static_cast<std::size_t>(m_rows) < m_shown.size();
}

void GroupListModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    const auto rest = static_cast<int>(m_shown.size()) - m_rows;
    const int added = std::min(rest, rowsAtOnce);
    beginInsertRows({}, m_rows, m_rows + added - 1);
    m_rows += added;
    endInsertRows();
}

QVariant GroupListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const GroupNumber group = m_shown[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return nameText(m_groups.item(m_groups.firstOf(group)));
    case ExplanationRole:
        return explanationOf(group);
    case SavingRole:
        return sizeText(m_groups.savingOf(group));
    case ChosenRole:
        return chosenText(group);
    case Qt::AccessibleTextRole: {
        const QString text = tr("%1, %2, %3 could be saved")
                                 .arg(data(index, Qt::DisplayRole).toString(), explanationOf(group),
                                      sizeText(m_groups.savingOf(group)));
        const QString chosen = chosenText(group);
        return chosen.isEmpty() ? text : tr("%1, %2").arg(text, chosen);
    }
    default:
        return {};
    }
}

QString GroupListModel::explanationOf(GroupNumber group) const
{
    const QString count = m_presentation.counted(m_groups.countOf(group));
    if (m_presentation.isSideBySide)
        return count;
    return tr("%1 of %2 each").arg(count, sizeText(m_groups.item(m_groups.firstOf(group)).state.size));
}

QString GroupListModel::chosenText(GroupNumber group) const
{
    const auto chosen = m_groups.chosenOf(group);
    return chosen == 0 ? QString() : tr("%n to remove", nullptr, static_cast<int>(chosen));
}

} // namespace MenuExtension::Duplicates
