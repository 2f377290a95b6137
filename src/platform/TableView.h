#pragma once

#include "platform/TableCellView.h"
#include "platform/URL.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace NS {

class TableView;

/// A column of a table; the tables of this program have one each.
class TableColumn;

/// Says how many rows a table has, and takes what is dropped on it.
class TableViewDataSource {
public:
    virtual ~TableViewDataSource() = default;

    [[nodiscard]] virtual std::ptrdiff_t numberOfRowsInTableView(TableView& tableView) = 0;
    /// Folders were dropped on a table whose scene lets it take some: one at least, as ChosenPaths::Storable has
    /// them.
    virtual void tableView_acceptDrop(TableView& /*tableView*/, const std::vector<URL>& /*folders*/) {}
};

/// Makes a table's row views.
class TableViewDelegate {
public:
    virtual ~TableViewDelegate() = default;

    /// A view got from makeViewWithIdentifier_owner and filled for the row, or nothing for an empty row.
    [[nodiscard]] virtual TableCellView*
    tableView_viewForTableColumn_row(TableView& tableView, const TableColumn* tableColumn, std::ptrdiff_t row) = 0;
    /// What typing letters finds the row by; empty for a row that is not found so.
    [[nodiscard]] virtual std::string tableView_typeSelectStringForTableColumn_row(TableView& /*tableView*/,
                                                                                   const TableColumn* /*tableColumn*/,
                                                                                   std::ptrdiff_t /*row*/)
    {
        return {};
    }
};

/// A list. Its scene connects it to its data source and delegate; it asks them for the rows in sight. Main thread.
class TableView : public View {
public:
    /// Asks for the number of rows and for the rows in sight again, before it returns.
    virtual void reloadData() = 0;
    /// The row that the user selected; -1 when there is none. A reload keeps it as long as there is such a row.
    [[nodiscard]] virtual std::ptrdiff_t selectedRow() const = 0;

    /// A row view to fill: one that has left sight and keeps what it showed, or a new one. Nothing when there is
    /// no such scene. The table owns it.
    [[nodiscard]] virtual TableCellView* makeViewWithIdentifier_owner(std::string_view identifier,
                                                                      SceneObject* owner) = 0;
};

} // namespace NS
