#pragma once

#include "platform/Workspace.h"
#include "platform/linux/chooser/FileIcons.h"
#include "platform/linux/chooser/FileKinds.h"
#include "platform/linux/processes/RunningApplications.h"

namespace LinuxDesktop {

class SessionBus;

/// The desktop around the program. Main thread but for runningApplications().
class DesktopWorkspace : public NS::Workspace {
public:
    /// `bus` must outlive the workspace.
    explicit DesktopWorkspace(SessionBus& bus);

    bool openURL(const NS::URL& url) override;
    NS::Image iconForFile(std::string_view path) override;
    std::vector<NS::RunningApplication> runningApplications() override;

private:
    SessionBus& m_bus;
    RunningApplications m_running;
    FileKinds m_kinds;
    FileIcons m_icons;
};

} // namespace LinuxDesktop
