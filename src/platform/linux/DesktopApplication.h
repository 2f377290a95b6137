#pragma once

#include "platform/Application.h"

#include <functional>

namespace LinuxDesktop {

class ApplicationName;

/// The running program on this desktop: regular means owning its name on the session bus. Main thread.
class DesktopApplication : public NS::Application {
public:
    /// `name` must outlive the application. `reopened` is called when the program is started again.
    DesktopApplication(ApplicationName& name, std::function<void()> reopened);

    void setActivationPolicy(NS::ActivationPolicy policy) override;
    void activateIgnoringOtherApps(bool flag) override;
    void terminate() override;

    /// Whether terminate() was called, which before the event loop runs is the only sign of it.
    [[nodiscard]] bool isTerminated() const { return m_terminated; }

private:
    ApplicationName& m_name;
    std::function<void()> m_reopened;
    bool m_terminated = false;
};

} // namespace LinuxDesktop
