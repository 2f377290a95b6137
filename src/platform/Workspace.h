#pragma once

#include "platform/Image.h"
#include "platform/RunningApplication.h"
#include "platform/URL.h"

#include <string_view>
#include <vector>

namespace NS {

/// The desktop around the program. Main thread unless a method says otherwise.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Opens a file or an address with the program that the user has for it; false when it could not be handed to
    /// one.
    virtual bool openURL(const URL& url) = 0;
    /// The icon of the item at the path, by its kind; that of an unknown item when there is none.
    [[nodiscard]] virtual Image iconForFile(std::string_view path) = 0;
    /// What runs, in a stable order. May take a while; any thread.
    [[nodiscard]] virtual std::vector<RunningApplication> runningApplications() = 0;
};

} // namespace NS
