#pragma once

#include "platform/URL.h"

#include <string_view>
#include <vector>

namespace NS {

inline constexpr std::string_view SharingServiceNameComposeEmail = "compose-email";

/// Told what a sharing service does with its items.
class SharingServiceDelegate {
public:
    virtual ~SharingServiceDelegate() = default;
};

/// A desktop service that takes items from this program. Found by Platform::sharingServiceNamed. Main thread.
class SharingService {
public:
    virtual ~SharingService() = default;

    /// Hands the items over and returns; what the service makes of them is not reported.
    virtual void performWithItems(const std::vector<URL>& items) = 0;
};

} // namespace NS
