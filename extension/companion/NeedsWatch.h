#pragma once

#include "extension/bus/Handles.h"
#include "extension/protocol/ActionNeeds.h"
#include "platform/linux/system/Inotify.h"

#include <functional>
#include <optional>
#include <vector>

namespace MenuExtension {

/// Tells when something that actions lack has come. Asleep while nothing is missing.
class NeedsWatch {
public:
    /// `event` must outlive the watch. `came` is called from its loop.
    NeedsWatch(sd_event& event, std::function<void()> came);
    NeedsWatch(const NeedsWatch&) = delete;
    NeedsWatch& operator=(const NeedsWatch&) = delete;

    /// Waits for these from now on, and for no others.
    void waitFor(std::vector<ActionNeed> missing);

private:
    void look();

    sd_event& m_event;
    std::function<void()> m_came;
    std::vector<ActionNeed> m_missing;
    std::optional<LinuxDesktop::Inotify> m_inotify;
    // Goes before the queue that it reads.
    EventSource m_events;
};

} // namespace MenuExtension
