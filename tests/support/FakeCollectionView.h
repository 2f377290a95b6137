#pragma once

#include "platform/CollectionView.h"
#include "support/CallLog.h"
#include "support/FakeScene.h"
#include "support/SceneAware.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A grid with every card in sight. It asks its data source for the items at each reload, and reuses those that a
/// reload sets free, in the order in which they were made.
class FakeCollectionView : public NS::CollectionView, public SceneAware {
public:
    /// Puts an item's views into `scene` and makes the item that they belong to.
    using ItemMaker = std::function<std::shared_ptr<NS::CollectionViewItem>(FakeScene& scene)>;

    FakeCollectionView(CallLog& calls, std::string name) : m_calls(calls), m_name(std::move(name)) {}

    void addItemScene(std::string_view identifier, ItemMaker maker);

    void connectTo(NS::SceneObject& owner) override;
    void reloadData() override;
    void setCollectionViewLayout(const NS::CollectionViewFlowLayout& layout) override;
    void setBackgroundColors(const std::vector<NS::Color>& colors) override;
    NS::CollectionViewItem& makeItemWithIdentifier_forIndexPath(std::string_view identifier,
                                                                NS::IndexPath indexPath) override;

    /// The layout that was set last.
    std::optional<NS::CollectionViewFlowLayout> layout;

    [[nodiscard]] std::size_t itemCount() const { return m_items.size(); }
    [[nodiscard]] NS::CollectionViewItem* item(std::size_t index) const { return m_items.at(index); }
    /// The views of the item.
    [[nodiscard]] FakeScene& itemScene(std::size_t index);
    [[nodiscard]] std::size_t itemsMade() const { return m_made.size(); }

private:
    struct Item {
        std::string identifier;
        std::shared_ptr<NS::CollectionViewItem> controller;
        bool inUse = true;
    };

    CallLog& m_calls;
    std::string m_name;
    NS::CollectionViewDataSource* m_dataSource = nullptr;
    std::map<std::string, ItemMaker, std::less<>> m_makers;
    std::vector<Item> m_made;
    std::vector<NS::CollectionViewItem*> m_items;
};
