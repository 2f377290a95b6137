#pragma once

#include "platform/Workspace.h"
#include "platform/linux/desktop/FileKinds.h"
#include "platform/linux/desktop/RunningApplications.h"
#include "platform/linux/filechooser/FileIcons.h"

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
