#pragma once

#include "platform/Application.h"
#include "platform/Bundle.h"
#include "platform/Date.h"
#include "platform/DistributedNotificationCenter.h"
#include "platform/Image.h"
#include "platform/OpenPanel.h"
#include "platform/SharingService.h"
#include "platform/Storyboard.h"
#include "platform/UserDefaults.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace NS {

/// Everything a desktop gives, in one place: the program asks for nothing any other way. Main thread unless the
/// thing handed out says otherwise.
class Platform {
public:
    virtual ~Platform() = default;

    /// A fresh handle on a domain shared with other programs; nothing when it cannot be read.
    [[nodiscard]] virtual std::shared_ptr<UserDefaults> userDefaultsWithSuiteName(std::string_view name) = 0;
    /// The program's own domain. Where it cannot be read it is empty and lasts as long as the process.
    [[nodiscard]] virtual UserDefaults& standardUserDefaults() = 0;
    [[nodiscard]] virtual DistributedNotificationCenter& defaultCenter() = 0;
    [[nodiscard]] virtual Application& sharedApplication() = 0;
    [[nodiscard]] virtual Bundle& mainBundle() = 0;
    [[nodiscard]] virtual std::shared_ptr<Storyboard> storyboardWithName_bundle(std::string_view name,
                                                                                Bundle& bundle) = 0;
    [[nodiscard]] virtual std::unique_ptr<OpenPanel> makeOpenPanel() = 0;
    /// The service, which lives as long as the program; nothing when the desktop has none of that name.
    [[nodiscard]] virtual SharingService* sharingServiceNamed(std::string_view name) = 0;
    /// One of the program's images or of the platform's; nothing when there is none of that name.
    [[nodiscard]] virtual std::optional<Image> imageNamed(std::string_view name) = 0;

    [[nodiscard]] virtual Date now() = 0;
    /// Calls `perform` once on the main thread, `delay` seconds from now.
    virtual void performAfterDelay(std::function<void()> perform, double delay) = 0;
};

/// The process's platform. Fatal before one is installed.
[[nodiscard]] Platform& platform();
/// Makes `platform` the process's, until another is installed; null takes it away. It stays the caller's.
void installPlatform(Platform* platform);

} // namespace NS
