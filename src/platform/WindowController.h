#pragma once

#include "platform/Outlet.h"
#include "platform/ViewController.h"
#include "platform/Window.h"

namespace NS {

/// Runs a window. Where it is a WindowDelegate too, its scene makes it its window's delegate. Main thread.
class WindowController : public Controller {
public:
    void connect(Connections& connections) override { connections.outlet(window); }

    /// The window exists and the outlets are filled. Called once, when the scene is instantiated.
    virtual void windowDidLoad() {}

    void showWindow() { window->makeKeyAndOrderFront(); }

    Outlet<Window> window{"window"};
};

} // namespace NS
