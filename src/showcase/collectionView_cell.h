#pragma once

#include "platform/Button.h"
#include "platform/CollectionView.h"
#include "platform/ImageView.h"
#include "platform/Outlet.h"
#include "platform/TextField.h"

/// The card of one application. It holds no logic: the showcase fills it. Main thread.
class collectionView_cell : public NS::CollectionViewItem {
public:
    void connect(NS::Connections& connections) override;

    NS::Outlet<NS::TextField> lblapptype{"lblapptype"};
    NS::Outlet<NS::Button> btnappstore{"btnappstore"};
    NS::Outlet<NS::ImageView> imgview{"imgview"};
    NS::Outlet<NS::TextField> lblsubtitle{"lblsubtitle"};
    NS::Outlet<NS::TextField> lbltitle{"lbltitle"};
};
