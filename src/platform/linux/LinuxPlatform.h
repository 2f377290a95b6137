#pragma once

#include "platform/ClassTable.h"
#include "platform/Platform.h"
#include "platform/linux/DesktopApplication.h"
#include "platform/linux/InformationBundle.h"
#include "platform/linux/ModalState.h"
#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/bus/DistributedNotificationCenter.h"
#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/defaults/Store.h"
#include "platform/linux/widgets/ImageStore.h"
#include "platform/linux/widgets/SceneConnections.h"

#include <QString>

namespace LinuxDesktop {

/// The vocabulary on a freedesktop.org desktop. One a process, made after the QApplication. Main thread.
class LinuxPlatform : public NS::Platform {
public:
    /// `resources` is the folder of the installed files. `classes` must outlive the platform.
    LinuxPlatform(const NS::ClassTable& classes, const QString& resources);
    ~LinuxPlatform() override;

    [[nodiscard]] ApplicationName& applicationName() { return m_name; }
    [[nodiscard]] SessionBus& sessionBus() { return m_bus; }
    [[nodiscard]] DesktopApplication& application() { return m_application; }
    /// Makes the application's delegate and connects it to the main storyboard.
    [[nodiscard]] NS::ApplicationDelegate& loadDelegate();

    std::shared_ptr<NS::UserDefaults> userDefaultsWithSuiteName(std::string_view name) override;
    NS::UserDefaults& standardUserDefaults() override;
    NS::DistributedNotificationCenter& defaultCenter() override { return m_center; }
    NS::Application& sharedApplication() override { return m_application; }
    NS::Bundle& mainBundle() override { return m_bundle; }
    std::shared_ptr<NS::Storyboard> storyboardWithName_bundle(std::string_view name, NS::Bundle& bundle) override;
    std::unique_ptr<NS::OpenPanel> makeOpenPanel() override;
    NS::SharingService* sharingServiceNamed(std::string_view name) override;
    std::optional<NS::Image> imageNamed(std::string_view name) override;
    NS::Date now() override;
    void performAfterDelay(std::function<void()> perform, double delay) override;

private:
    const NS::ClassTable& m_classes;
    Store m_store;
    std::shared_ptr<NS::UserDefaults> m_standardDefaults;
    InformationBundle m_bundle;
    ImageStore m_images;
    ModalState m_modalState;
    SessionBus m_bus;
    // Before the name, so that the name is given back first: a folder that is being packed holds the end up.
    std::unique_ptr<NS::SharingService> m_composeEmail;
    ApplicationName m_name;
    DistributedNotificationCenter m_center;
    DesktopApplication m_application;
    std::shared_ptr<NS::ApplicationDelegate> m_delegate;
    ActionMap m_responders;
};

} // namespace LinuxDesktop
