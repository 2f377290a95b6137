#pragma once

#include "platform/linux/chooser/FileIcons.h"
#include "platform/linux/chooser/FolderListing.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace LinuxDesktop {

/// One folder's items as rows, folders before files. Names are kept in bytes; what is shown of a row is made when
/// it is asked for. Main thread.
class FolderModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, Size, Modified, ColumnCount };

    explicit FolderModel(QObject* parent = nullptr);

    /// Before there are items.
    void setFilesSelectable(bool selectable) { m_filesSelectable = selectable; }
    /// Shows these items. Does nothing when it shows just these already.
    void setEntries(std::vector<FileEntry> entries);
    [[nodiscard]] const FileEntry& entry(int row) const { return m_rows[static_cast<std::size_t>(row)].entry; }
    [[nodiscard]] std::optional<int> rowOf(const std::string& name) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    struct Row {
        FileEntry entry;
        QString text;
        QCollatorSortKey key;
    };

    [[nodiscard]] QString cellText(const Row& row, int column) const;
    [[nodiscard]] QString kindText(const Row& row) const;
    /// What the row says after its name, for screen readers.
    [[nodiscard]] QString spokenText(const Row& row, int column) const;
    [[nodiscard]] QString description(const Row& row) const;
    [[nodiscard]] QString tooltip(const Row& row, int column) const;
    void sortRows();

    std::vector<Row> m_rows;
    QCollator m_collator;
    mutable FileIcons m_icons;
    bool m_filesSelectable = true;
    int m_sortColumn = Name;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace LinuxDesktop
