#pragma once

#include "platform/Control.h"

namespace NS {

/// State of a button that can be switched on and off.
enum class ControlState { Off = 0, On = 1 };

/// A push button or a checkbox. Main thread.
class Button : public Control {
public:
    /// Shows the state; the button's action is not sent.
    virtual void setState(ControlState state) = 0;
};

} // namespace NS
