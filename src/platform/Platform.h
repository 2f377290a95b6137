#pragma once

#include "platform/Alert.h"
#include "platform/Application.h"
#include "platform/Bookmark.h"
#include "platform/Bundle.h"
#include "platform/Cursor.h"
#include "platform/Date.h"
#include "platform/DistributedNotificationCenter.h"
#include "platform/FinderSyncController.h"
#include "platform/Image.h"
#include "platform/OpenPanel.h"
#include "platform/SharingService.h"
#include "platform/Storyboard.h"
#include "platform/Timer.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
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
    [[nodiscard]] virtual std::unique_ptr<OpenPanel> makeOpenPanel(ChosenPaths paths) = 0;
    [[nodiscard]] virtual std::unique_ptr<Alert> makeAlert() = 0;
    [[nodiscard]] virtual Workspace& sharedWorkspace() = 0;
    [[nodiscard]] virtual FI::FinderSyncController& defaultController() = 0;
    /// The service, which lives as long as the program; nothing when the desktop has none of that name.
    [[nodiscard]] virtual SharingService* sharingServiceNamed(std::string_view name) = 0;
    /// One of the program's images or of the platform's; nothing when there is none of that name.
    [[nodiscard]] virtual std::optional<Image> imageNamed(std::string_view name) = 0;

    /// A bookmark of the folder at `url`. `options` are the bits of BookmarkCreation...
    [[nodiscard]] virtual BookmarkData bookmarkDataWithOptions(const URL& url, unsigned options) = 0;
    /// Whether anything exists at the path.
    [[nodiscard]] virtual bool fileExistsAtPath(std::string_view path) = 0;
    /// The user's login name.
    [[nodiscard]] virtual std::string userName() = 0;
    /// Whether two texts in UTF-8 are the same under canonical equivalence of Unicode.
    [[nodiscard]] virtual bool canonicallyEqual(std::string_view one, std::string_view other) = 0;
    /// The pointer's shape from now on, over the view that it is over.
    virtual void setCursor(Cursor cursor) = 0;
    /// A number below `bound`, each as likely as the others.
    [[nodiscard]] virtual std::uint32_t arc4random_uniform(std::uint32_t bound) = 0;

    [[nodiscard]] virtual Date now() = 0;
    /// Calls `perform` once on the main thread, `delay` seconds from now; after a modal panel that runs then.
    virtual void performAfterDelay(std::function<void()> perform, double delay) = 0;
    /// Calls `fire` on the main thread every `interval` seconds, the first time one interval from now. Of the turns
    /// that fall into a modal panel one comes, after it.
    [[nodiscard]] virtual std::shared_ptr<Timer> scheduledTimerWithTimeInterval(double interval,
                                                                                std::function<void()> fire) = 0;
    /// Calls `work` soon on a background thread. Any thread.
    virtual void dispatchToGlobalQueue(std::function<void()> work) = 0;
    /// Calls `work` soon on the main thread. Any thread.
    virtual void dispatchToMainQueue(std::function<void()> work) = 0;
};

/// The process's platform. Fatal before one is installed.
[[nodiscard]] Platform& platform();
/// Makes `platform` the process's, until another is installed; null takes it away. It stays the caller's.
void installPlatform(Platform* platform);

} // namespace NS
