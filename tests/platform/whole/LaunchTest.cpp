#include "WholePlatform.h"

#include "platform/bus/PrivateBus.h"
#include "platform/linux/scenes/SceneConnections.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QTimer>

#include <optional>
#include <string>
#include <vector>

namespace {

using Steps = std::vector<std::string>;

/// Notes each step of the program's life, and takes one of its own.
struct NotingDelegate : NS::ApplicationDelegate {
    void connect(NS::Connections&) override {}
    void applicationWillFinishLaunching() override
    {
        steps.push_back("will finish launching");
        if (atLaunch)
            atLaunch();
    }
    void applicationDidFinishLaunching() override
    {
        steps.push_back("did finish launching");
        if (afterLaunch)
            afterLaunch();
    }
    void applicationWillTerminate() override { steps.push_back("will terminate"); }

    Steps steps;
    std::function<void()> atLaunch;
    std::function<void()> afterLaunch;
};

/// An end without an event loop would end the next one, which may be that of another test.
void forgetTheEnd()
{
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
}

class LaunchOnTheDesktop : public WholePlatform {
protected:
    LaunchOnTheDesktop()
    {
        QTimer::singleShot(30'000, &m_patience, [] { QCoreApplication::exit(42); });
    }

    void TearDown() override { forgetTheEnd(); }

    int run() { return platform.application().run(delegate); }
    void note(const std::string& step) { delegate.steps.push_back(step); }

    NotingDelegate delegate;

private:
    QObject m_patience;
};

TEST_F(LaunchOnTheDesktop, TheDelegateIsToldOfEachStepAndEventsComeBetween)
{
    delegate.atLaunch = [this] {
        platform.dispatchToMainQueue([this] {
            note("an event");
            platform.application().terminate();
        });
    };
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(delegate.steps, (Steps{"will finish launching", "did finish launching", "an event", "will terminate"}));
}

TEST_F(LaunchOnTheDesktop, AProgramThatTerminatesAtLaunchHandlesNoEvent)
{
    delegate.atLaunch = [this] {
        platform.dispatchToMainQueue([this] { note("an event"); });
        platform.application().terminate();
    };
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(delegate.steps, (Steps{"will finish launching", "will terminate"}));
}

TEST_F(LaunchOnTheDesktop, AProgramMayTerminateOnceItHasLaunched)
{
    delegate.afterLaunch = [this] { platform.application().terminate(); };
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(delegate.steps, (Steps{"will finish launching", "did finish launching", "will terminate"}));
}

TEST_F(LaunchOnTheDesktop, AProgramIsRegularWithoutASessionBus)
{
    EXPECT_TRUE(platform.application().setActivationPolicy(NS::ActivationPolicy::Regular));
}

/// With a session bus to be the program on.
class LaunchOnABus : public testing::Test {
protected:
    void TearDown() override { forgetTheEnd(); }
    /// Nobody's bus again, as before.
    static void TearDownTestSuite() { qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"); }

    PrivateBus m_daemon;
    NS::ClassTable m_classes;
    LinuxDesktop::SessionBus m_bus{""};
    LinuxDesktop::ApplicationName m_name{m_bus, "org.example.Whole"};
    LinuxDesktop::LinuxPlatform m_platform{m_classes, QStringLiteral("/nonexistent"), m_bus, m_name};
};

TEST_F(LaunchOnABus, AProgramThatBecomesRegularOwnsItsName)
{
    EXPECT_TRUE(m_platform.application().setActivationPolicy(NS::ActivationPolicy::Regular));
    EXPECT_TRUE(m_bus.connection()->interface()->isServiceRegistered(QStringLiteral("org.example.Whole")));
}

TEST_F(LaunchOnABus, AProgramThatAnotherProcessHasBecomeMeanwhileEnds)
{
    auto other = QDBusConnection::connectToBus(QString::fromUtf8(m_daemon.address()), QStringLiteral("other"));
    ASSERT_TRUE(other.registerService(QStringLiteral("org.example.Whole")));
    NotingDelegate delegate;
    std::optional<bool> regular;
    delegate.atLaunch = [&] {
        regular = m_platform.application().setActivationPolicy(NS::ActivationPolicy::Regular);
    };

    EXPECT_EQ(m_platform.application().run(delegate), 0);

    EXPECT_EQ(regular, false);
    EXPECT_EQ(delegate.steps, (Steps{"will finish launching", "will terminate"}));
    QDBusConnection::disconnectFromBus(QStringLiteral("other"));
}

} // namespace
