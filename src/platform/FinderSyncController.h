#pragma once

#include "platform/URL.h"

#include <set>

namespace FI {

/// Tells the file manager's companion which folders it watches. Main thread.
class FinderSyncController {
public:
    virtual ~FinderSyncController() = default;

    /// Replaces the whole set of before.
    virtual void setDirectoryURLs(const std::set<NS::URL>& urls) = 0;
};

} // namespace FI
