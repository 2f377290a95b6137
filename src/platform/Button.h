#pragma once

#include "platform/Control.h"
#include "platform/TrackingArea.h"

namespace NS {

/// State of a button that can be switched on and off.
enum class ControlState { Mixed = -1, Off = 0, On = 1 };

/// A push button or a checkbox. Main thread.
class Button : public Control {
public:
    /// Shows the state; the button's action is not sent.
    virtual void setState(ControlState state) = 0;
    [[nodiscard]] virtual ControlState state() const = 0;

    /// The button's own rectangle, with its origin at 0, 0.
    [[nodiscard]] virtual Rect bounds() const = 0;
    /// The area stays as long as the button.
    virtual void addTrackingArea(const TrackingArea& area) = 0;
};

} // namespace NS
