#pragma once

#include "platform/CollectionView.h"
#include "platform/linux/scenes/FlowGeometry.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QScrollArea;

namespace LinuxDesktop {

/// A grid of cards, each the widgets of an item's scene; as high as its lines make it, so that a scroll area shows
/// it. Tab goes through the cards' controls in the order of the items, the arrow keys, Home, End and the page keys
/// from card to card; a card that the keyboard comes to is scrolled into sight. Main thread.
class CollectionGrid : public QWidget, public NS::CollectionView {
    Q_OBJECT

public:
    /// Makes an item for an identifier; null where there is no such scene.
    using ItemMaker = std::function<std::shared_ptr<NS::CollectionViewItem>(std::string_view identifier)>;

    explicit CollectionGrid(QWidget* parent = nullptr);
    ~CollectionGrid() override;

    void setItemMaker(ItemMaker maker) { m_makeItem = std::move(maker); }
    /// Must outlive the grid; null for none.
    void setDataSource(NS::CollectionViewDataSource* source) { m_dataSource = source; }

    void reloadData() override;
    void setCollectionViewLayout(const NS::CollectionViewFlowLayout& layout) override;
    void setBackgroundColors(const std::vector<NS::Color>& colors) override;
    NS::CollectionViewItem& makeItemWithIdentifier_forIndexPath(std::string_view identifier,
                                                                NS::IndexPath indexPath) override;

    /// The cards that show, in the order of the items.
    [[nodiscard]] const QList<QWidget*>& cards() const { return m_cards; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Item {
        std::string identifier;
        std::shared_ptr<NS::CollectionViewItem> controller;
        bool isFree = false;
    };

    NS::CollectionViewItem& newItem(std::string_view identifier);
    [[nodiscard]] FlowGeometry geometryFor(int width) const { return {m_layout, static_cast<double>(width)}; }
    void layOutCards();
    /// The place of the card that the widget lies in; -1 for none.
    [[nodiscard]] qsizetype cardWith(const QObject* widget) const;
    /// The card that a key leads to from the one at `card`; -1 where the key leads nowhere.
    [[nodiscard]] qsizetype cardAfterKey(int key, qsizetype card) const;
    void focusCard(qsizetype card);
    void scrollToCard(qsizetype card);
    [[nodiscard]] QScrollArea* scrollArea() const;

    ItemMaker m_makeItem;
    NS::CollectionViewDataSource* m_dataSource = nullptr;
    NS::CollectionViewFlowLayout m_layout;
    /// In the order of their making, which is that of the places where they show.
    std::vector<Item> m_items;
    QList<QWidget*> m_cards;
    /// The last of the cards' controls in the order of Tab; the grid itself before there is one.
    QWidget* m_lastControl = this;
};

} // namespace LinuxDesktop
