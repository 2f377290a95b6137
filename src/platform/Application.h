#pragma once

#include "platform/Connections.h"

namespace NS {

/// How a program shows on the desktop.
enum class ActivationPolicy { Regular = 0, Accessory = 1, Prohibited = 2 };

/// The running program. Main thread.
class Application {
public:
    virtual ~Application() = default;

    /// A process starts as neither; Regular makes it the program that shows windows under its identifier. False when
    /// another process is that program: this one is ending then, and makes no windows.
    [[nodiscard]] virtual bool setActivationPolicy(ActivationPolicy policy) = 0;
    /// Brings the program's windows in front of other programs'.
    virtual void activateIgnoringOtherApps(bool flag) = 0;
    /// Ends the event loop; the process ends when the caller has returned to it. During launch the loop is
    /// never entered.
    virtual void terminate() = 0;
};

/// The program's own part in its life. Made by the main storyboard.
class ApplicationDelegate : public SceneObject {
public:
    /// Before the first event is handled.
    virtual void applicationWillFinishLaunching() {}
    /// After that, unless the program is ending already.
    virtual void applicationDidFinishLaunching() {}
    /// The last of all, however the program ends in good order.
    virtual void applicationWillTerminate() {}
    /// The program was started again while it runs as a regular application; its windows are in front already.
    virtual void applicationShouldHandleReopen_hasVisibleWindows(bool /*flag*/) {}
};

} // namespace NS
