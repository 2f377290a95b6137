#pragma once

#include "platform/Color.h"
#include "platform/Geometry.h"
#include "platform/ViewController.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace NS {

class CollectionView;

/// An item's place in a collection; collections of this program have one section.
struct IndexPath {
    std::ptrdiff_t item = 0;
    std::ptrdiff_t section = 0;

    friend bool operator==(const IndexPath&, const IndexPath&) = default;
};

/// Lines of items of one size from the top, each as long as the width between the insets allows, and at least one
/// item long. A full line is spread over that width.
struct CollectionViewFlowLayout {
    Size itemSize{50.0, 50.0};
    EdgeInsets sectionInset;
    double minimumInteritemSpacing = 10.0;
    double minimumLineSpacing = 10.0;

    friend bool operator==(const CollectionViewFlowLayout&, const CollectionViewFlowLayout&) = default;
};

/// Runs one card of a collection.
class CollectionViewItem : public ViewController {};

class CollectionViewDataSource {
public:
    virtual ~CollectionViewDataSource() = default;

    [[nodiscard]] virtual std::ptrdiff_t collectionView_numberOfItemsInSection(CollectionView& collectionView,
                                                                               std::ptrdiff_t section) = 0;
    /// An item got from makeItemWithIdentifier_forIndexPath and filled.
    [[nodiscard]] virtual CollectionViewItem*
    collectionView_itemForRepresentedObjectAtIndexPath(CollectionView& collectionView, IndexPath indexPath) = 0;
};

/// A grid of cards. Its scene connects it to its data source. Main thread.
class CollectionView : public View {
public:
    /// Asks for the number of items and for the items again, before it returns.
    virtual void reloadData() = 0;
    virtual void setCollectionViewLayout(const CollectionViewFlowLayout& layout) = 0;
    virtual void setBackgroundColors(const std::vector<Color>& colors) = 0;

    /// An item to fill: one that is free, or a new one. Fatal when there is no such scene. The collection owns it.
    [[nodiscard]] virtual CollectionViewItem& makeItemWithIdentifier_forIndexPath(std::string_view identifier,
                                                                                  IndexPath indexPath) = 0;
};

} // namespace NS
