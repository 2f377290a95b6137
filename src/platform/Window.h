#pragma once

#include "platform/ViewController.h"

#include <memory>

namespace NS {

/// Told what happens to a window.
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;

    virtual void windowWillClose() {}
};

/// A top-level window. Owned by its scene. Main thread.
class Window : public View {
public:
    /// Shows the controller's view as the window's content and keeps the controller.
    virtual void setContentViewController(std::shared_ptr<ViewController> controller) = 0;
    /// Shows the window in front of the program's other windows.
    virtual void makeKeyAndOrderFront() = 0;
};

} // namespace NS
