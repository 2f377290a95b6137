#pragma once

#include "extension/protocol/Outcome.h"

#include <functional>
#include <memory>

class QObject;
class QWidget;

namespace LinuxDesktop {
class SessionBus;
}

namespace MenuExtension {

/// Makes the window of an action, which is not shown yet.
using MakeWindow = std::function<std::unique_ptr<QWidget>()>;

/// What perform() of an action with a window does: starts the toolkit, makes the window, answers the request when the
/// window shows, and runs until it is closed. It looks as the desktop wishes. A process of the action may run beside
/// others. Gives a failure where there is no display. Main thread, once, and before any other thread is started.
[[nodiscard]] Outcome performInWindow(const MakeWindow& make);

/// Makes what runs an action that need not show a window, or not at once. It answers the request, and ends the
/// program by QCoreApplication::quit(), as a signal does that asks the program to end. It lives until then.
using MakeRunner = std::function<std::unique_ptr<QObject>(LinuxDesktop::SessionBus& bus)>;

/// The same as performInWindow() for such an action.
[[nodiscard]] Outcome performWithToolkit(const MakeRunner& make);

} // namespace MenuExtension
