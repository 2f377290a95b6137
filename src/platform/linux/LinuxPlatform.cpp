#include "platform/linux/LinuxPlatform.h"

#include "platform/FatalError.h"
#include "platform/linux/EmptyDefaults.h"
#include "platform/linux/desktop/ComposeEmail.h"
#include "platform/linux/filechooser/FileChooser.h"
#include "platform/linux/widgets/WidgetStoryboard.h"
#include "settings/Deployment.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <cmath>

namespace LinuxDesktop {

LinuxPlatform::LinuxPlatform(const NS::ClassTable& classes, const QString& resources)
    : m_classes(classes), m_standardDefaults(m_store.open(Deployment::applicationIdentifier)),
      m_bundle(resources.toStdString()), m_images(resources + QStringLiteral("/Assets")),
      m_bus("orvik-menu: no session bus: the panel works, but hears nothing of the extension"),
      m_name(m_bus, Deployment::applicationIdentifier), m_center(m_bus, m_modalState),
      m_application(m_name, m_modalState,
                    [this] { m_delegate->applicationShouldHandleReopen_hasVisibleWindows(true); })
{
    if (!m_standardDefaults)
        m_standardDefaults = std::make_shared<EmptyDefaults>();
    m_responders["terminate:"] = [this](NS::Control&) { m_application.terminate(); };
}

LinuxPlatform::~LinuxPlatform() = default;

NS::ApplicationDelegate& LinuxPlatform::loadDelegate()
{
    m_delegate = m_classes.delegates.at("AppDelegate")();
    SceneConnections connections(nullptr);
    m_delegate->connect(connections);
    m_responders.insert(connections.actions().begin(), connections.actions().end());
    return *m_delegate;
}

std::shared_ptr<NS::UserDefaults> LinuxPlatform::userDefaultsWithSuiteName(std::string_view name)
{
    return m_store.open(name);
}

NS::UserDefaults& LinuxPlatform::standardUserDefaults()
{
    return *m_standardDefaults;
}

std::shared_ptr<NS::Storyboard> LinuxPlatform::storyboardWithName_bundle(std::string_view, NS::Bundle&)
{
    return std::make_shared<WidgetStoryboard>(m_classes, m_images, m_responders);
}

std::unique_ptr<NS::OpenPanel> LinuxPlatform::makeOpenPanel()
{
    return std::make_unique<FileChooser>(m_modalState);
}

NS::SharingService* LinuxPlatform::sharingServiceNamed(std::string_view name)
{
    if (name != NS::SharingServiceNameComposeEmail)
        return nullptr;
    if (!m_composeEmail)
        m_composeEmail = composeEmailService(m_bus);
    return m_composeEmail.get();
}

std::optional<NS::Image> LinuxPlatform::imageNamed(std::string_view name)
{
    if (!m_images.contains(name))
        return std::nullopt;
    return NS::Image(std::string(name));
}

NS::Date LinuxPlatform::now()
{
    return {std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count()};
}

void LinuxPlatform::performAfterDelay(std::function<void()> perform, double delay)
{
    QTimer::singleShot(std::chrono::milliseconds(std::llround(delay * 1000.0)), Qt::PreciseTimer, qApp,
                       std::move(perform));
}

} // namespace LinuxDesktop
