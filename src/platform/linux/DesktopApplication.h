#pragma once

#include "platform/Application.h"

#include <functional>

namespace LinuxDesktop {

class ApplicationName;

/// The running program on this desktop: regular means owning its name on the session bus. Main thread.
class DesktopApplication : public NS::Application {
public:
    /// `reopened` is called when the program is started again, once its window is in front. `name` must outlive the
    /// application.
    DesktopApplication(ApplicationName& name, std::function<void()> reopened);

    bool setActivationPolicy(NS::ActivationPolicy policy) override;
    void activateIgnoringOtherApps(bool flag) override;
    void terminate() override;

    /// Launches `delegate`, runs the event loop until terminate(), and returns the exit status. No event loop runs
    /// after a terminate() during launch.
    int run(NS::ApplicationDelegate& delegate);

private:
    ApplicationName& m_name;
    std::function<void()> m_reopened;
    bool m_terminated = false;
};

} // namespace LinuxDesktop
