#pragma once

#include "extension/actions/duplicates/Groups.h"
#include "extension/actions/duplicates/Presentation.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

namespace MenuExtension::Duplicates {

/// The items of one group, with a box each that chooses them to be removed. Main thread.
class ItemListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, FolderColumn, SizeColumn, DateColumn, FirstOwnColumn };

    /// Both must outlive it.
    ItemListModel(Groups& groups, const Presentation& presentation, QObject* parent);

    /// Nothing for none. Shows the items of the group anew where they are others than before.
    void setGroup(std::optional<GroupNumber> group);
    [[nodiscard]] std::optional<GroupNumber> group() const { return m_group; }
    [[nodiscard]] const std::vector<ItemNumber>& items() const { return m_items; }
    /// Something about them is other than before.
    void refresh();
    /// While false, nothing can be chosen.
    void setChangeable(bool changeable);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

    /// Another choice was made.
    Q_SIGNAL void chosen();
    /// It was not, since it would have been the last of the group.
    Q_SIGNAL void refused();

private:
    [[nodiscard]] QString text(const Item& item, int row, int column) const;
    void findProposal();

    Groups& m_groups;
    const Presentation& m_presentation;
    std::optional<GroupNumber> m_group;
    std::vector<ItemNumber> m_items;
    int m_rows = 0;
    bool m_isChangeable = true;
    /// The row of the item that the finder would keep, and why.
    int m_proposed = -1;
    QString m_why;
};

} // namespace MenuExtension::Duplicates
