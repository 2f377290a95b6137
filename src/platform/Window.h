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

/// A window that is attached to another while it shows, and blocks it. Main thread.
class Sheet : public View {};

/// A top-level window. Owned by its scene. Main thread.
class Window : public View {
public:
    /// Shows the controller's view as the window's content and keeps the controller.
    virtual void setContentViewController(std::shared_ptr<ViewController> controller) = 0;
    /// Shows the window in front of the program's other windows.
    virtual void makeKeyAndOrderFront() = 0;
    /// Takes away the sheet that is attached to this window.
    virtual void endSheet(Sheet& sheet) = 0;
};

} // namespace NS
