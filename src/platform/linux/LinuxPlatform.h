#pragma once

#include "platform/ClassTable.h"
#include "platform/Platform.h"
#include "platform/linux/DesktopApplication.h"
#include "platform/linux/DesktopWorkspace.h"
#include "platform/linux/InformationBundle.h"
#include "platform/linux/bus/DistributedNotificationCenter.h"
#include "platform/linux/bus/FinderSyncController.h"
#include "platform/linux/scenes/ImageStore.h"
#include "platform/linux/scenes/PointerShape.h"
#include "platform/linux/scenes/SceneConnections.h"
#include "platform/linux/store/Store.h"
#include "platform/linux/system/ModalState.h"

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <vector>

namespace LinuxDesktop {

class ApplicationName;
class SessionBus;

/// The vocabulary on a freedesktop.org desktop. One a process, made after the QApplication. Main thread.
class LinuxPlatform : public NS::Platform {
public:
    /// `resources` is the folder of the installed files. The others must outlive the platform.
    LinuxPlatform(const NS::ClassTable& classes, const QString& resources, SessionBus& bus, ApplicationName& name);
    ~LinuxPlatform() override;

    [[nodiscard]] DesktopApplication& application() { return m_application; }
    /// Makes the application's delegate and connects it to the main storyboard.
    [[nodiscard]] NS::ApplicationDelegate& loadDelegate();

    std::shared_ptr<NS::UserDefaults> userDefaultsWithSuiteName(std::string_view name) override;
    NS::UserDefaults& standardUserDefaults() override;
    NS::DistributedNotificationCenter& defaultCenter() override { return m_center; }
    NS::Application& sharedApplication() override { return m_application; }
    NS::Bundle& mainBundle() override { return m_bundle; }
    std::shared_ptr<NS::Storyboard> storyboardWithName_bundle(std::string_view name, NS::Bundle& bundle) override;
    std::unique_ptr<NS::OpenPanel> makeOpenPanel(NS::ChosenPaths paths) override;
    std::unique_ptr<NS::Alert> makeAlert() override;
    NS::Workspace& sharedWorkspace() override { return m_workspace; }
    FI::FinderSyncController& defaultController() override { return m_finderSync; }
    NS::SharingService* sharingServiceNamed(std::string_view name) override;
    std::optional<NS::Image> imageNamed(std::string_view name) override;
    NS::BookmarkData bookmarkDataWithOptions(const NS::URL& url, unsigned options) override;
    bool fileExistsAtPath(std::string_view path) override;
    std::string userName() override;
    bool canonicallyEqual(std::string_view one, std::string_view other) override;
    void setCursor(NS::Cursor cursor) override { m_cursor.set(cursor); }
    std::uint32_t arc4random_uniform(std::uint32_t bound) override;
    NS::Date now() override;
    void performAfterDelay(std::function<void()> perform, double delay) override;
    std::shared_ptr<NS::Timer> scheduledTimerWithTimeInterval(double interval, std::function<void()> fire) override;
    void dispatchToGlobalQueue(std::function<void()> work) override;
    void dispatchToMainQueue(std::function<void()> work) override;

private:
    /// Now, or after the modal panel that runs.
    void performOutsidePanels(std::function<void()> perform);
    /// The same from a later turn of the event loop.
    void performSoonOutsidePanels(std::function<void()> perform);
    void performHeldBack();

    const NS::ClassTable& m_classes;
    Store m_store;
    std::shared_ptr<NS::UserDefaults> m_standardDefaults;
    InformationBundle m_bundle;
    ImageStore m_images;
    ModalState m_modalState;
    SessionBus& m_bus;
    std::unique_ptr<NS::SharingService> m_composeEmail;
    DistributedNotificationCenter m_center;
    FinderSyncController m_finderSync;
    DesktopWorkspace m_workspace;
    PointerShape m_cursor;
    QObject m_timers;
    /// What fell due while a modal panel ran.
    std::vector<std::function<void()>> m_heldBack;
    std::shared_ptr<const ModalState::Callback> m_modalEnd = m_modalState.whenEnded([this] { performHeldBack(); });
    DesktopApplication m_application;
    std::shared_ptr<NS::ApplicationDelegate> m_delegate;
    ActionMap m_responders;
    // Last, since its work may ask for the rest; it ends first.
    QThreadPool m_globalQueue;
};

} // namespace LinuxDesktop
