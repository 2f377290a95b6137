#include "showcase/utilityKitvc.h"

#include "platform/FatalError.h"
#include "platform/LocalizedString.h"
#include "platform/Platform.h"
#include "showcase/InstalledApplications.h"
#include "showcase/PromotedApplications.h"
#include "showcase/collectionView_cell.h"

#include <string>

namespace {

constexpr NS::Size cardSize{430.0, 220.0};
constexpr double marginAbove = 10.0;
constexpr double marginBelow = 20.0;
/// Two cards and what keeps them apart; the rest of the width is split into three.
constexpr double widthOfTwoCards = 880.0;

/// In seconds: until then a window that is new has its final width.
constexpr double firstLayoutDelay = 0.1;

} // namespace

void utilityKitvc::connect(NS::Connections& connections)
{
    connections.outlet(lblotherapps);
    connections.outlet(scrollview);
    connections.outlet(collectionView);
}

void utilityKitvc::viewDidLoad()
{
    NS::ViewController::viewDidLoad();
    lblotherapps->setStringValue(NS::LocalizedString("utilityKitvc", "Other Apps we think you may Love:"));
    scrollview->setBackgroundColor(NS::Color::clearColor);
    collectionView->setBackgroundColors({NS::Color::clearColor});
}

void utilityKitvc::viewWillAppear()
{
    build();
}

void utilityKitvc::viewDidAppear()
{
    if (isfirstTimeLodded) {
        configureCollectionView();
        return;
    }
    isfirstTimeLodded = true;
    NS::platform().performAfterDelay([self = shared_from_this()] { self->configureCollectionView(); },
                                     firstLayoutDelay);
}

void utilityKitvc::build()
{
    randomPrmotarr = drawPromotionOrder();
    checkInstalledApplications();
    allappsDic = promotedApplications(randomPrmotarr);
    collectionView->reloadData();
    configureCollectionView();
}

void utilityKitvc::configureCollectionView()
{
    NS::CollectionViewFlowLayout layout;
    layout.itemSize = cardSize;
    space = (scene()->frame().size.width - widthOfTwoCards) / 3.0;
    layout.sectionInset = {.top = marginAbove, .left = space, .bottom = marginBelow, .right = space};
    layout.minimumInteritemSpacing = 0.0;
    collectionView->setCollectionViewLayout(layout);
}

std::ptrdiff_t utilityKitvc::collectionView_numberOfItemsInSection(NS::CollectionView&, std::ptrdiff_t)
{
    return std::ssize(allappsDic);
}

NS::CollectionViewItem* utilityKitvc::collectionView_itemForRepresentedObjectAtIndexPath(NS::CollectionView& view,
                                                                                         NS::IndexPath indexPath)
{
    auto* card = dynamic_cast<collectionView_cell*>(
        &view.makeItemWithIdentifier_forIndexPath("collectionView_cell", indexPath));
    if (!card)
        NS::fatalError("the scene \"collectionView_cell\" is of the wrong class");
    const ShowcaseEntry& entry = entryAt(indexPath.item);
    if (const auto* title = valueForKey<std::string>(entry, ShowcaseKey::Title))
        card->lbltitle->setStringValue(*title);
    if (const auto* icon = valueForKey<NS::Image>(entry, ShowcaseKey::icon))
        card->imgview->setImage(*icon);
    if (const auto* description = valueForKey<std::string>(entry, ShowcaseKey::description))
        card->lblsubtitle->setStringValue(*description);
    card->btnappstore->setTag(indexPath.item);
    card->btnappstore->setAction([this](NS::Control& sender) { btnAppStoreClickedWithSender(sender); });
    if (const auto* category = valueForKey<std::string>(entry, ShowcaseKey::category))
        card->lblapptype->setStringValue(*category);
    return card;
}

void utilityKitvc::btnAppStoreClickedWithSender(NS::Control& sender)
{
    const auto* address = valueForKey<std::string>(entryAt(sender.tag()), ShowcaseKey::apppath);
    const auto url = address ? NS::URL::URLWithString(*address) : std::nullopt;
    if (url)
        NS::platform().sharedWorkspace().openURL(*url);
}

const ShowcaseEntry& utilityKitvc::entryAt(std::ptrdiff_t index) const
{
    if (index < 0 || index >= std::ssize(allappsDic))
        NS::fatalError("the showcase has no entry " + std::to_string(index));
    return allappsDic[static_cast<std::size_t>(index)];
}
