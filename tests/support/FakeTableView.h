#pragma once

#include "platform/TableView.h"
#include "support/CallLog.h"
#include "support/FakeScene.h"
#include "support/SceneAware.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// A list with every row in sight. It asks its data source and delegate for the rows when it appears and at each
/// reload, and reuses the row views that a reload sets free, in the order in which they were made.
class FakeTableView : public NS::TableView, public SceneAware {
public:
    /// Puts a row's views into `scene` and makes the row view that they belong to.
    using RowMaker = std::function<std::unique_ptr<NS::TableCellView>(FakeScene& scene)>;

    FakeTableView(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void addRowScene(std::string_view identifier, RowMaker maker);

    void connectTo(NS::SceneObject& owner) override;
    void appear() override { loadRows(); }
    void reloadData() override;
    std::ptrdiff_t selectedRow() const override
    {
        m_calls.record(m_name, "selectedRow");
        return selected;
    }
    NS::TableCellView* makeViewWithIdentifier_owner(std::string_view identifier, NS::SceneObject* owner) override;

    /// What the user selected.
    std::ptrdiff_t selected = -1;

    [[nodiscard]] std::size_t rowCount() const { return m_rows.size(); }
    /// Null where the delegate gave no view.
    [[nodiscard]] NS::TableCellView* rowView(std::size_t row) const { return m_rows.at(row); }
    /// The views of the row. A test that asks for those of a row without a view ends.
    [[nodiscard]] FakeScene& rowScene(std::size_t row);
    [[nodiscard]] std::size_t rowViewsMade() const { return m_made.size(); }

private:
    struct RowView {
        std::string identifier;
        std::unique_ptr<FakeScene> scene;
        std::unique_ptr<NS::TableCellView> view;
        bool inUse = true;
    };

    void loadRows();

    CallLog& m_calls;
    std::string m_name;
    NS::TableViewDataSource* m_dataSource = nullptr;
    NS::TableViewDelegate* m_delegate = nullptr;
    std::map<std::string, RowMaker, std::less<>> m_makers;
    std::vector<RowView> m_made;
    std::vector<NS::TableCellView*> m_rows;
};
