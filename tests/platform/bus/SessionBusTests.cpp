#include "PrivateBus.h"
#include "Waiting.h"
#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/bus/DistributedNotificationCenter.h"
#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/system/ModalState.h"

#include <QFile>

#include <ctime>
#include <gtest/gtest.h>

using namespace LinuxDesktop;
using namespace std::chrono_literals;

namespace {

struct EnvironmentWithoutBus : testing::Test {
    EnvironmentWithoutBus()
    {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", m_runtimeFolder.path().toUtf8());
    }

    QTemporaryDir m_runtimeFolder;
};

} // namespace

TEST_F(EnvironmentWithoutBus, IsSaidOnceHoweverManyParts)
{
    testing::internal::CaptureStderr();
    {
        SessionBus bus("working without the bus");
        ModalState modal;
        DistributedNotificationCenter center(bus, modal);
        center.addObserver_name_object([] {}, "A", "sender");
        center.addObserver_name_object([] {}, "B", "sender");
        ApplicationName name(bus, "org.example.Program");
        EXPECT_FALSE(name.ownedByAnother());
        EXPECT_FALSE(name.activateOther({}));
        EXPECT_EQ(name.claim(), ApplicationName::Claim::NoBus);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "working without the bus\n");
}

TEST_F(EnvironmentWithoutBus, IsNotSaidWhenNobodyAsks)
{
    testing::internal::CaptureStderr();
    {
        const SessionBus bus("working without the bus");
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(EnvironmentWithoutBus, StartsNoneAlsoWhereTheAddressAsksForOne)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "autolaunch:");
    SessionBus bus("none");
    EXPECT_FALSE(bus.connection());
}

TEST_F(EnvironmentWithoutBus, IsWhatASocketThatNobodyServesIs)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + m_runtimeFolder.filePath(QStringLiteral("gone")).toUtf8());
    SessionBus bus("none");
    EXPECT_FALSE(bus.connection());
}

TEST(SessionBus, IsFoundInTheRuntimeFolderWhenNoAddressIsGiven)
{
    const PrivateBus daemon;
    const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/a name, with ~ and %-XXXXXX"));
    ASSERT_TRUE(QFile::link(QString::fromUtf8(daemon.socketPath()), folder.filePath(QStringLiteral("bus"))));
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());

    SessionBus bus("none");
    const auto connection = bus.connection();
    ASSERT_TRUE(connection);
    EXPECT_TRUE(connection->isConnected());
}

TEST(SessionBus, ThatDiesLeavesTheProcessRunningAndIdle)
{
    PrivateBus daemon;
    SessionBus bus("none");
    ModalState modal;
    DistributedNotificationCenter center(bus, modal);
    center.addObserver_name_object([] {}, "A", "sender");
    ApplicationName name(bus, "org.example.Program");
    ASSERT_EQ(name.claim(), ApplicationName::Claim::Owned);

    daemon.kill();
    runFor(100ms);
    const std::clock_t before = std::clock();
    runFor(500ms);
    const double busy = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    EXPECT_LT(busy, 0.1);

    center.addObserver_name_object([] {}, "B", "sender");
    ApplicationName other(bus, "org.example.Other");
    EXPECT_EQ(other.claim(), ApplicationName::Claim::NoBus);
}
