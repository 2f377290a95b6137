#pragma once

#include "platform/RunningApplication.h"
#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/processes/DesktopEntries.h"

#include <QDBusConnection>

#include <optional>
#include <vector>

namespace LinuxDesktop {

/// The programs that run, as the session bus knows them: who owns a name there runs under that identifier. The bus's
/// own name is no program's. What desktop entries say decides how each shows.
class RunningApplications {
public:
    /// Main thread.
    explicit RunningApplications(SessionBus& bus);

    /// By their identifiers' text; empty without a bus. Blocks for one bus call, 5 seconds at most, and needs no
    /// other thread's event loop. Any thread.
    [[nodiscard]] std::vector<NS::RunningApplication> list();

private:
    std::optional<QDBusConnection> m_connection;
    DesktopEntries m_entries;
};

} // namespace LinuxDesktop
