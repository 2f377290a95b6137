#pragma once

#include "platform/Platform.h"
#include "support/CallLog.h"
#include "support/FakeApplication.h"
#include "support/FakeBundle.h"
#include "support/FakeClock.h"
#include "support/FakeDistributedNotificationCenter.h"
#include "support/FakeOpenPanel.h"
#include "support/FakeSharingService.h"
#include "support/FakeStoryboard.h"
#include "support/FakeUserDefaults.h"
#include "support/PrintValue.h"

#include <memory>
#include <set>
#include <string>

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
    NS::Application& sharedApplication() override { return m_application; }
    FakeBundle& mainBundle() override { return m_bundle; }
    std::shared_ptr<NS::Storyboard> storyboardWithName_bundle(std::string_view name, NS::Bundle& bundle) override;
    std::unique_ptr<NS::OpenPanel> makeOpenPanel() override;
    NS::SharingService* sharingServiceNamed(std::string_view name) override;
    std::optional<NS::Image> imageNamed(std::string_view name) override;
    NS::Date now() override;
    void performAfterDelay(std::function<void()> perform, double delay) override;

    CallLog calls;
    FakeClock clock;
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
    int m_suitesOpened = 0;
    int m_panelsMade = 0;
};
