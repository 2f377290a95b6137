#pragma once

#include "platform/CollectionView.h"
#include "platform/Outlet.h"
#include "platform/ScrollView.h"
#include "platform/TextField.h"
#include "platform/ViewController.h"
#include "showcase/ShowcaseEntry.h"

#include <memory>
#include <vector>

/// The showcase: a card for each of the maker's applications that is not installed yet, chosen and ordered anew at
/// each showing. Main thread.
class utilityKitvc : public NS::ViewController,
                     public NS::CollectionViewDataSource,
                     public std::enable_shared_from_this<utilityKitvc> {
public:
    void connect(NS::Connections& connections) override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;

    /// Gives the grid a layout for the width that the view has now.
    void configureCollectionView();

    std::ptrdiff_t collectionView_numberOfItemsInSection(NS::CollectionView& view, std::ptrdiff_t section) override;
    /// An item that the list does not have is fatal.
    NS::CollectionViewItem* collectionView_itemForRepresentedObjectAtIndexPath(NS::CollectionView& view,
                                                                               NS::IndexPath indexPath) override;

    /// Opens the store's page of the entry that the sender's tag names. A tag outside the list is fatal.
    void btnAppStoreClickedWithSender(NS::Control& sender);

    NS::Outlet<NS::TextField> lblotherapps{"lblotherapps"};
    NS::Outlet<NS::ScrollView> scrollview{"scrollview"};
    NS::Outlet<NS::CollectionView> collectionView{"collectionView"};
    std::vector<ShowcaseEntry> allappsDic;
    /// Whether the screen has appeared before.
    bool isfirstTimeLodded = false;
    /// The promotion order of this showing.
    std::vector<int> randomPrmotarr;
    /// For the reader: the layout has it in its constants.
    double numberofitemsinOneRow = 2.0;
    /// The margin on either side of the cards, in points. Negative where the view is too narrow for two of them.
    double space = 0.0;

private:
    void build();
    [[nodiscard]] const ShowcaseEntry& entryAt(std::ptrdiff_t index) const;
};
