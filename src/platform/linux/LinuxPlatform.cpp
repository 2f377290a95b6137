#include "platform/linux/LinuxPlatform.h"

#include "platform/FatalError.h"
#include "platform/linux/EmptyDefaults.h"
#include "platform/linux/bookmarks/FolderBookmark.h"
#include "platform/linux/chooser/FileChooser.h"
#include "platform/linux/mailing/ComposeEmail.h"
#include "platform/linux/scenes/WidgetAlert.h"
#include "platform/linux/scenes/WidgetStoryboard.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/text/CanonicalText.h"
#include "platform/linux/text/FileNameText.h"
#include "settings/Deployment.h"

#include <QCoreApplication>
#include <QPointer>
#include <QRandomGenerator>
#include <QTimer>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <pwd.h>
#include <random>
#include <unistd.h>
#include <utility>

namespace LinuxDesktop {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LinuxPlatform)
};

/// Words for a path that a settings file could not give back as it is.
QString refusalOfUnstorable(const std::string& path)
{
    if (!PropertyList::unstorableReason(NS::Value(path)))
        return {};
    return Texts::tr("“%1” cannot be used: its path has characters that cannot be stored as text. "
                     "Rename the folder, then choose it again.")
        .arg(fileNameText(path));
}

std::chrono::milliseconds milliseconds(double seconds)
{
    return std::chrono::milliseconds(std::llround(seconds * 1000.0));
}

/// A repeating timer of the main event loop. Main thread.
class RepeatingTimer : public NS::Timer {
public:
    explicit RepeatingTimer(QPointer<QTimer> timer) : m_timer(std::move(timer)) {}

    void invalidate() override { delete m_timer.data(); }

private:
    QPointer<QTimer> m_timer;
};

} // namespace

LinuxPlatform::LinuxPlatform(const NS::ClassTable& classes, const QString& resources, SessionBus& bus,
                             ApplicationName& name)
    : m_classes(classes), m_standardDefaults(m_store.open(Deployment::applicationIdentifier)),
      m_bundle(resources.toStdString()), m_images(resources + QStringLiteral("/Assets")), m_bus(bus),
      m_center(bus, m_modalState), m_finderSync(bus), m_workspace(bus), m_application(name, [this] {
          performSoonOutsidePanels([this] { m_delegate->applicationShouldHandleReopen_hasVisibleWindows(true); });
      })
{
    if (!m_standardDefaults)
        m_standardDefaults = std::make_shared<EmptyDefaults>();
    m_responders["terminate:"] = [this](NS::Control&) { m_application.terminate(); };
}

LinuxPlatform::~LinuxPlatform()
{
    m_globalQueue.waitForDone();
}

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
    return std::make_shared<WidgetStoryboard>(m_classes, m_images, m_responders, refusalOfUnstorable);
}

std::unique_ptr<NS::OpenPanel> LinuxPlatform::makeOpenPanel(NS::ChosenPaths paths)
{
    // What led to the panel is over, whatever becomes of the program while the user thinks.
    m_store.writeNow();
    auto panel = std::make_unique<FileChooser>(m_modalState);
    if (paths == NS::ChosenPaths::Storable)
        panel->setRefusal(refusalOfUnstorable);
    return panel;
}

std::unique_ptr<NS::Alert> LinuxPlatform::makeAlert()
{
    return std::make_unique<WidgetAlert>(m_modalState);
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
    QTimer::singleShot(milliseconds(delay), Qt::PreciseTimer, &m_timers,
                       [this, perform = std::move(perform)] { performOutsidePanels(perform); });
}

std::shared_ptr<NS::Timer> LinuxPlatform::scheduledTimerWithTimeInterval(double interval, std::function<void()> fire)
{
    const QPointer timer = new QTimer(&m_timers);
    timer->setTimerType(Qt::PreciseTimer);
    // However many turns fall into a panel, one waits for its end.
    const auto waits = std::make_shared<bool>(false);
    const auto turn = [timer, waits, fire = std::move(fire)] {
        *waits = false;
        if (timer)
            fire();
    };
    QObject::connect(timer, &QTimer::timeout, timer, [this, waits, turn] {
        if (!std::exchange(*waits, true))
            performOutsidePanels(turn);
    });
    timer->start(milliseconds(interval));
    return std::make_shared<RepeatingTimer>(timer);
}

void LinuxPlatform::performOutsidePanels(std::function<void()> perform)
{
    if (m_modalState.active())
        m_heldBack.push_back(std::move(perform));
    else
        perform();
}

void LinuxPlatform::performSoonOutsidePanels(std::function<void()> perform)
{
    dispatchToMainQueue([this, perform = std::move(perform)] { performOutsidePanels(perform); });
}

void LinuxPlatform::performHeldBack()
{
    for (auto& perform : std::exchange(m_heldBack, {}))
        performSoonOutsidePanels(std::move(perform));
}

void LinuxPlatform::dispatchToGlobalQueue(std::function<void()> work)
{
    m_globalQueue.start(std::move(work));
}

void LinuxPlatform::dispatchToMainQueue(std::function<void()> work)
{
    QMetaObject::invokeMethod(&m_timers, std::move(work), Qt::QueuedConnection);
}

NS::BookmarkData LinuxPlatform::bookmarkDataWithOptions(const NS::URL& url, unsigned)
{
    return makeFolderBookmark(url.path());
}

bool LinuxPlatform::fileExistsAtPath(std::string_view path)
{
    std::error_code failure;
    return std::filesystem::exists(std::filesystem::path(path), failure);
}

std::string LinuxPlatform::userName()
{
    const passwd* user = getpwuid(getuid());
    return user ? user->pw_name : std::to_string(getuid());
}

bool LinuxPlatform::canonicallyEqual(std::string_view one, std::string_view other)
{
    return LinuxDesktop::canonicallyEqual(one, other);
}

std::uint32_t LinuxPlatform::arc4random_uniform(std::uint32_t bound)
{
    return std::uniform_int_distribution<std::uint32_t>(0, bound - 1)(*QRandomGenerator::system());
}

} // namespace LinuxDesktop
