#include "support/FakeTableView.h"

#include <algorithm>
#include <utility>

void FakeTableView::addRowScene(std::string_view identifier, RowMaker maker)
{
    m_makers.insert_or_assign(std::string(identifier), std::move(maker));
}

void FakeTableView::connectTo(NS::SceneObject& owner)
{
    m_dataSource = dynamic_cast<NS::TableViewDataSource*>(&owner);
    m_delegate = dynamic_cast<NS::TableViewDelegate*>(&owner);
}

void FakeTableView::reloadData()
{
    m_calls.record(m_name, "reloadData");
    loadRows();
}

void FakeTableView::loadRows()
{
    for (RowView& made : m_made)
        made.inUse = false;
    m_rows.clear();
    if (!m_dataSource || !m_delegate)
        return;
    const std::ptrdiff_t count = m_dataSource->numberOfRowsInTableView(*this);
    for (std::ptrdiff_t row = 0; row < count; ++row)
        m_rows.push_back(m_delegate->tableView_viewForTableColumn_row(*this, nullptr, row));
}

NS::TableCellView* FakeTableView::makeViewWithIdentifier_owner(std::string_view identifier, NS::SceneObject* owner)
{
    m_calls.record(m_name, owner ? "makeViewWithIdentifier_owner" : "makeViewWithIdentifier", identifier);
    const auto free = std::ranges::find_if(
        m_made, [&](const RowView& made) { return !made.inUse && made.identifier == identifier; });
    if (free != m_made.end()) {
        free->inUse = true;
        return free->view.get();
    }
    const auto maker = m_makers.find(identifier);
    if (maker == m_makers.end())
        return nullptr;
    auto scene =
        std::make_unique<FakeScene>(m_calls, std::string(identifier) + '#' + std::to_string(m_made.size() + 1));
    auto view = maker->second(*scene);
    scene->connectTo(*view);
    return m_made.emplace_back(RowView{std::string(identifier), std::move(scene), std::move(view)}).view.get();
}

FakeScene& FakeTableView::rowScene(std::size_t row)
{
    const NS::TableCellView* shown = rowView(row);
    const auto found = std::ranges::find_if(m_made, [&](const RowView& made) { return made.view.get() == shown; });
    if (found == m_made.end())
        NS::fatalError("the fake table shows no view in row " + std::to_string(row));
    return *found->scene;
}
