#pragma once

#include "platform/Outlet.h"
#include "platform/ViewController.h"

namespace NS {

/// Pages of which one shows at a time, each run by a view controller of its own. A page's screen is loaded when
/// the page is first shown. Main thread.
class TabView : public View {
public:
    /// Shows the page at `index`, counted from 0. A page that does not exist is fatal.
    virtual void selectTabViewItemAtIndex(int index) = 0;
};

/// Runs a screen of tabs, which its scene defines.
class TabViewController : public ViewController {
public:
    void connect(Connections& connections) override { connections.outlet(tabView); }

    Outlet<TabView> tabView{"tabView"};
};

} // namespace NS
