#pragma once

#include "platform/FinderSyncController.h"
#include "platform/linux/bus/SessionBus.h"

#include <QObject>

#include <memory>
#include <set>

class FinderSyncAdaptor;

namespace LinuxDesktop {

/// Publishes the watched folders on the session bus, as addresses in the set's order. The object is there from the
/// first publication on, so a reader can tell that there was none yet. Without a bus nothing happens. Main thread.
class FinderSyncController final : public FI::FinderSyncController {
public:
    /// `bus` must outlive the controller.
    explicit FinderSyncController(SessionBus& bus);
    ~FinderSyncController() override;

    /// Addresses of more than 64 MiB fit no message of the bus: they are not published, what was published before
    /// stays, and standard error says so.
    void setDirectoryURLs(const std::set<NS::URL>& urls) override;

private:
    SessionBus& m_bus;
    /// Has the addresses as the property that its interface shows.
    std::unique_ptr<QObject> m_exported;
    /// Part of m_exported.
    FinderSyncAdaptor* m_interface = nullptr;
};

} // namespace LinuxDesktop
