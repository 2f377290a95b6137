#include "platform/linux/processes/RunningApplications.h"

#include "../bus/PrivateBus.h"
#include "DataFolders.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace LinuxDesktop;
using NS::ActivationPolicy;

namespace {

using Listed = std::vector<std::pair<std::string, ActivationPolicy>>;

Listed listOf(RunningApplications& running)
{
    Listed listed;
    for (const NS::RunningApplication& application : running.list())
        listed.emplace_back(application.bundleIdentifier.value_or("none"), application.activationPolicy);
    return listed;
}

struct Running : testing::Test {
    [[nodiscard]] bool own(const char* name)
    {
        return m_owner.connection()->registerService(QString::fromLatin1(name));
    }
    void giveUp(const char* name) { m_owner.connection()->unregisterService(QString::fromLatin1(name)); }

    PrivateBus m_daemon;
    DataFolders m_data;
    SessionBus m_owner{"none"};
    SessionBus m_bus{"none"};
};

} // namespace

TEST_F(Running, AreTheOwnersOfNamesByTheirText)
{
    m_data.write("home/applications/org.example.regular.desktop", "");
    m_data.write("home/applications/org.example.Accessory.desktop", "NoDisplay=true\n");
    m_data.write("home/applications/org.example.prohibited.desktop", "Hidden=true\n");
    for (const char* name : {"org.example.prohibited", "org.example.Regular", "a.b-c._d", "org.example.accessory",
                             "org.example.unknown", "Z.z"})
        ASSERT_TRUE(own(name));
    RunningApplications running(m_bus);
    EXPECT_EQ(listOf(running), (Listed{{"Z.z", ActivationPolicy::Accessory},
                                       {"a.b-c._d", ActivationPolicy::Accessory},
                                       {"org.example.Regular", ActivationPolicy::Regular},
                                       {"org.example.accessory", ActivationPolicy::Accessory},
                                       {"org.example.prohibited", ActivationPolicy::Prohibited},
                                       {"org.example.unknown", ActivationPolicy::Accessory}}));
}

TEST_F(Running, AreNeitherTheBusNorConnectionsWithoutAName)
{
    RunningApplications running(m_bus);
    EXPECT_EQ(listOf(running), Listed());
}

TEST_F(Running, ComeAndGo)
{
    RunningApplications running(m_bus);
    ASSERT_TRUE(own("org.example.A"));
    EXPECT_EQ(listOf(running), (Listed{{"org.example.A", ActivationPolicy::Accessory}}));
    m_data.write("system/applications/org.example.A.desktop", "");
    EXPECT_EQ(listOf(running), (Listed{{"org.example.A", ActivationPolicy::Regular}}));
    giveUp("org.example.A");
    EXPECT_EQ(listOf(running), Listed());
}

TEST_F(Running, AreToldToTwoThreadsAtOnceWhileTheMainThreadIsBusy)
{
    m_data.write("home/applications/org.example.A.desktop", "");
    ASSERT_TRUE(own("org.example.A"));
    ASSERT_TRUE(own("org.example.B"));
    RunningApplications running(m_bus);
    const Listed expected{{"org.example.A", ActivationPolicy::Regular},
                          {"org.example.B", ActivationPolicy::Accessory}};
    int right = 0;
    int otherRight = 0;
    const auto ask = [&](int& count) {
        for (int round = 0; round < 200; ++round)
            count += listOf(running) == expected ? 1 : 0;
    };
    std::thread thread(ask, std::ref(right));
    std::thread other(ask, std::ref(otherRight));
    // No event loop runs here meanwhile.
    thread.join();
    other.join();
    EXPECT_EQ(right, 200);
    EXPECT_EQ(otherRight, 200);
}

TEST_F(Running, AreNoneWhenTheBusHasDied)
{
    ASSERT_TRUE(own("org.example.A"));
    RunningApplications running(m_bus);
    m_daemon.kill();
    EXPECT_EQ(listOf(running), Listed());
}

TEST(RunningWithoutBus, AreNone)
{
    const QTemporaryDir empty;
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", empty.path().toUtf8());
    SessionBus bus("");
    RunningApplications running(bus);
    EXPECT_EQ(listOf(running), Listed());
}
