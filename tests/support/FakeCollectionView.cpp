#include "support/FakeCollectionView.h"

#include "support/FakeStoryboard.h"

#include <algorithm>
#include <utility>

void FakeCollectionView::addItemScene(std::string_view identifier, ItemMaker maker)
{
    m_makers.insert_or_assign(std::string(identifier), std::move(maker));
}

void FakeCollectionView::connectTo(NS::SceneObject& owner)
{
    m_dataSource = dynamic_cast<NS::CollectionViewDataSource*>(&owner);
}

void FakeCollectionView::reloadData()
{
    m_calls.record(m_name, "reloadData");
    for (Item& made : m_made)
        made.inUse = false;
    m_items.clear();
    if (!m_dataSource)
        return;
    const std::ptrdiff_t count = m_dataSource->collectionView_numberOfItemsInSection(*this, 0);
    for (std::ptrdiff_t item = 0; item < count; ++item)
        m_items.push_back(
            m_dataSource->collectionView_itemForRepresentedObjectAtIndexPath(*this, {.item = item, .section = 0}));
}

void FakeCollectionView::setCollectionViewLayout(const NS::CollectionViewFlowLayout& newLayout)
{
    const NS::EdgeInsets& inset = newLayout.sectionInset;
    m_calls.record(m_name, "setCollectionViewLayout", newLayout.itemSize.width, newLayout.itemSize.height, inset.top,
                   inset.left, inset.bottom, inset.right, newLayout.minimumInteritemSpacing);
    layout = newLayout;
}

void FakeCollectionView::setBackgroundColors(const std::vector<NS::Color>& colors)
{
    m_calls.record(m_name, "setBackgroundColors", colors);
}

NS::CollectionViewItem& FakeCollectionView::makeItemWithIdentifier_forIndexPath(std::string_view identifier,
                                                                                NS::IndexPath indexPath)
{
    m_calls.record(m_name, "makeItemWithIdentifier_forIndexPath", identifier, indexPath.item);
    const auto free =
        std::ranges::find_if(m_made, [&](const Item& made) { return !made.inUse && made.identifier == identifier; });
    if (free != m_made.end()) {
        free->inUse = true;
        return *free->controller;
    }
    const auto maker = m_makers.find(identifier);
    if (maker == m_makers.end())
        NS::fatalError("the fake collection has no item " + std::string(identifier));
    auto scene =
        std::make_unique<FakeScene>(m_calls, std::string(identifier) + '#' + std::to_string(m_made.size() + 1));
    const auto controller = maker->second(*scene);
    scene->connectTo(*controller);
    controller->setScene(std::move(scene));
    controller->viewDidLoad();
    return *m_made.emplace_back(Item{std::string(identifier), controller}).controller;
}

FakeScene& FakeCollectionView::itemScene(std::size_t index)
{
    return sceneOf(*item(index));
}
