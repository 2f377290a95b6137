#pragma once

#include "platform/Application.h"
#include "platform/linux/system/ModalState.h"

#include <functional>

namespace LinuxDesktop {

class ApplicationName;

/// The running program on this desktop: regular means owning its name on the session bus. Main thread.
class DesktopApplication : public NS::Application {
public:
    /// `reopened` is called when the program is started again, but not while a modal panel runs. The others must
    /// outlive the application.
    DesktopApplication(ApplicationName& name, ModalState& modalState, std::function<void()> reopened);

    void setActivationPolicy(NS::ActivationPolicy policy) override;
    void activateIgnoringOtherApps(bool flag) override;
    void terminate() override;

    /// Whether terminate() was called, which before the event loop runs is the only sign of it.
    [[nodiscard]] bool isTerminated() const { return m_terminated; }

private:
    void reopen();
    void reopenIfItWaits();

    ApplicationName& m_name;
    ModalState& m_modalState;
    std::function<void()> m_reopened;
    std::shared_ptr<const ModalState::Callback> m_modalEnd;
    bool m_reopenWaits = false;
    bool m_terminated = false;
};

} // namespace LinuxDesktop
