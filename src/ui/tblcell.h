#pragma once

#include "platform/Button.h"
#include "platform/ImageView.h"
#include "platform/Outlet.h"
#include "platform/TableCellView.h"
#include "platform/TextField.h"

/// The row view that every list shares. It holds no logic: each list fills the parts that it needs and leaves
/// the others as they are. Main thread.
class tblcell : public NS::TableCellView {
public:
    void connect(NS::Connections& connections) override;

    NS::Outlet<NS::TextField> lbltitle{"lbltitle"};
    NS::Outlet<NS::ImageView> imgview{"imgview"};
    NS::Outlet<NS::Button> checkbox{"checkbox"};
    NS::Outlet<NS::Button> btnDelete{"btnDelete"};
};
