#pragma once

#include "platform/Platform.h"
#include "settings/Deployment.h"
#include "support/CallLog.h"
#include "support/FakeAlert.h"
#include "support/FakeApplication.h"
#include "support/FakeBundle.h"
#include "support/FakeClock.h"
#include "support/FakeDistributedNotificationCenter.h"
#include "support/FakeFinderSyncController.h"
#include "support/FakeOpenPanel.h"
#include "support/FakeQueue.h"
#include "support/FakeSharingService.h"
#include "support/FakeStoryboard.h"
#include "support/FakeUserDefaults.h"
#include "support/FakeWorkspace.h"
#include "support/PrintValue.h"

#include <map>
#include <memory>
#include <set>
#include <string>

/// How the call log tells that the shared suite is opened.
inline const std::string opensSharedSuite =
    "platform.userDefaultsWithSuiteName(\"" + std::string(Deployment::suiteName) + "\")";

/// A desktop in memory. It is the process's platform for as long as it lives, records every call in `calls`, and
/// numbers what it hands out anew (suite#1, panel#1), so that a test tells a fresh handle from an old one.
class FakePlatform : public NS::Platform {
public:
    FakePlatform() { NS::installPlatform(this); }
    ~FakePlatform() override { NS::installPlatform(nullptr); }
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    std::shared_ptr<NS::UserDefaults> userDefaultsWithSuiteName(std::string_view name) override;
    NS::UserDefaults& standardUserDefaults() override { return m_standardUserDefaults; }
    FakeDistributedNotificationCenter& defaultCenter() override { return m_center; }
    FakeApplication& sharedApplication() override { return m_application; }
    FakeBundle& mainBundle() override { return m_bundle; }
    std::shared_ptr<NS::Storyboard> storyboardWithName_bundle(std::string_view name, NS::Bundle& bundle) override;
    std::unique_ptr<NS::OpenPanel> makeOpenPanel(NS::ChosenPaths paths) override;
    std::unique_ptr<NS::Alert> makeAlert() override;
    FakeWorkspace& sharedWorkspace() override { return m_workspace; }
    FakeFinderSyncController& defaultController() override { return m_finderSync; }
    NS::SharingService* sharingServiceNamed(std::string_view name) override;
    std::optional<NS::Image> imageNamed(std::string_view name) override;
    NS::BookmarkData bookmarkDataWithOptions(const NS::URL& url, unsigned options) override;
    bool fileExistsAtPath(std::string_view path) override;
    std::string userName() override;
    /// Compares bytes, but takes "e" with a combining acute accent for the letter that has one.
    bool canonicallyEqual(std::string_view one, std::string_view other) override;
    void setCursor(NS::Cursor cursor) override;
    std::uint32_t arc4random_uniform(std::uint32_t bound) override;
    NS::Date now() override;
    std::shared_ptr<NS::Timer> scheduledTimerWithTimeInterval(double interval, std::function<void()> fire) override;
    void dispatchToGlobalQueue(std::function<void()> work) override;
    void dispatchToMainQueue(std::function<void()> work) override;
    void performAfterDelay(std::function<void()> perform, double delay) override;

    /// Runs what waits in the background, then what waits for the main thread.
    void runQueues();
    /// The alert that was made last.
    [[nodiscard]] FakeAlert& alert() { return *m_lastAlert; }

    CallLog calls;
    FakeClock clock;
    FakeQueue globalQueue;
    FakeQueue mainQueue;
    /// What bookmarks are made of: the bookmark of a path is the bytes of its entry here, or of the path itself.
    std::map<std::string, NS::BookmarkData, std::less<>> bookmarks;
    std::set<std::string, std::less<>> existingFiles;
    /// What arc4random_uniform answers.
    std::uint32_t random = 0;
    /// Called while an alert runs modally.
    std::function<void()> whileAlertIsModal;
    /// The stored values of every suite, whatever its name, and of the program's own domain.
    NS::Value::Dictionary suite;
    NS::Value::Dictionary standard;
    bool suiteCanBeRead = true;
    bool hasMailService = true;
    OpenPanelScript openPanel;
    /// Every image exists but these.
    std::set<std::string, std::less<>> missingImages;
    const std::shared_ptr<FakeStoryboard> storyboard = std::make_shared<FakeStoryboard>(calls);

private:
    FakeUserDefaults m_standardUserDefaults{calls, "standard", standard};
    FakeDistributedNotificationCenter m_center{calls};
    FakeApplication m_application{calls};
    FakeBundle m_bundle{calls};
    FakeSharingService m_mailService{calls};
    FakeWorkspace m_workspace{calls};
    FakeFinderSyncController m_finderSync{calls};
    FakeAlert* m_lastAlert = nullptr;
    int m_alertsMade = 0;
    int m_suitesOpened = 0;
    int m_panelsMade = 0;
};
