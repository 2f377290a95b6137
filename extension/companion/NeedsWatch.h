#pragma once

#include "extension/bus/Handles.h"
#include "extension/protocol/ActionNeeds.h"
#include "platform/linux/system/Inotify.h"

#include <functional>
#include <optional>
#include <vector>

namespace MenuExtension {

/// Tells when something that actions need has come or gone. Asleep while they need nothing.
class NeedsWatch {
public:
    /// `event` must outlive the watch. `changed` is called from its loop.
    NeedsWatch(sd_event& event, std::function<void()> changed);
    NeedsWatch(const NeedsWatch&) = delete;
    NeedsWatch& operator=(const NeedsWatch&) = delete;

    /// Follows these from now on, and no others. True where it did not before: what was looked at before that may
    /// have changed untold.
    bool follow(std::vector<ActionNeed> needs);

private:
    void look();

    sd_event& m_event;
    std::function<void()> m_changed;
    std::vector<ActionNeed> m_needs;
    /// Whether each is there.
    std::vector<bool> m_areMet;
    std::optional<LinuxDesktop::Inotify> m_inotify;
    // Goes before the queue that it reads.
    EventSource m_events;
};

} // namespace MenuExtension
