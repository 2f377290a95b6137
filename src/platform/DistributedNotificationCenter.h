#pragma once

#include <functional>
#include <string_view>

namespace NS {

/// The desktop's broadcast channel between programs.
class DistributedNotificationCenter {
public:
    virtual ~DistributedNotificationCenter() = default;

    /// Calls `handler` on the main thread for each posting of exactly this name by exactly this sender object,
    /// until the process ends. Postings that arrive while a modal panel runs are delivered, in order, after it.
    virtual void addObserver_name_object(std::function<void()> handler, std::string_view name,
                                         std::string_view object) = 0;
};

} // namespace NS
