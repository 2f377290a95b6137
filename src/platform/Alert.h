#pragma once

#include "platform/Button.h"
#include "platform/Window.h"

#include <functional>
#include <string_view>
#include <vector>

namespace NS {

enum class AlertStyle { Warning = 0, Informational = 1 };

/// A question or a notice in a window of its own. Made by Platform::makeAlert, set up, then shown once. Main thread.
class Alert {
public:
    virtual ~Alert() = default;

    virtual void setAlertStyle(AlertStyle style) = 0;
    virtual void setMessageText(std::string_view text) = 0;
    /// Says more, below the message.
    virtual void setInformativeText(std::string_view text) = 0;

    /// Adds a button after those that are there; the first is the default one. It dismisses the alert, unless it
    /// is given another action.
    virtual void addButtonWithTitle(std::string_view title) = 0;
    /// The buttons in the order of their adding. They live as long as the alert.
    [[nodiscard]] virtual std::vector<Button*> buttons() = 0;
    /// The alert's own window, for Window::endSheet.
    [[nodiscard]] virtual Sheet& window() = 0;

    /// Shows the alert attached to `parent` and returns; the alert stays up until a button dismisses it or the
    /// sheet is ended, whether the object lives on or not.
    virtual void beginSheetModalForWindow(Window& parent) = 0;
    /// Shows the alert and blocks until the user dismisses it.
    virtual void runModal() = 0;
};

} // namespace NS
