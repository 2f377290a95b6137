#include "CompanionStandIn.h"

#include "../bus/PrivateBus.h"
#include "../bus/Waiting.h"
#include "extension/bridges/gtk/CompanionCopy.h"
#include "extension/bridges/gtk/RunCall.h"

#include <chrono>
#include <gtest/gtest.h>
#include <memory>

using namespace MenuExtension;
using namespace std::chrono_literals;

namespace {

Properties offering(const std::vector<std::string>& actions)
{
    return Properties().with("Actions", Properties::actions(actions)).with("Scope", Properties::scope({{"/listed"}}));
}

class CompanionCopyTest : public testing::Test {
protected:
    /// The process's connection ends with its bus.
    ~CompanionCopyTest() override
    {
        m_copy.reset();
        if (const Reference<GDBusConnection> connection{g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr)})
            g_dbus_connection_close_sync(connection.get(), nullptr, nullptr);
        runFor(50ms);
    }

    [[nodiscard]] std::vector<std::string> offered() const
    {
        std::vector<std::string> identifiers;
        for (const MenuAction& action : m_copy->settings().actions)
            identifiers.push_back(action.identifier);
        return identifiers;
    }

    /// Waits for the copy to offer these, `patience` times as long as for most.
    [[nodiscard]] bool offers(const std::vector<std::string>& actions, int patience = 1) const
    {
        while (patience-- > 0) {
            if (waitUntil([&] { return offered() == actions; }))
                return true;
        }
        return false;
    }

    [[nodiscard]] std::string address() const { return m_bus.address().toStdString(); }
    std::unique_ptr<CompanionStandIn> newCompanion(const std::vector<std::string>& actions)
    {
        auto companion = std::make_unique<CompanionStandIn>(address());
        companion->publish(offering(actions));
        return companion;
    }

    PrivateBus m_bus;
    int m_changes = 0;
    std::unique_ptr<CompanionCopy> m_copy = std::make_unique<CompanionCopy>([this] { ++m_changes; });
};

/// Stands for everything else that the host's main loop does.
class Heartbeat {
public:
    Heartbeat() : m_timer(g_timeout_add(1, &Heartbeat::beat, this)) {}
    ~Heartbeat() { g_source_remove(m_timer); }
    Heartbeat(const Heartbeat&) = delete;
    Heartbeat& operator=(const Heartbeat&) = delete;
    [[nodiscard]] int beats() const { return m_beats; }

private:
    static gboolean beat(gpointer data)
    {
        ++static_cast<Heartbeat*>(data)->m_beats;
        return G_SOURCE_CONTINUE;
    }

    int m_beats = 0;
    guint m_timer;
};

} // namespace

TEST_F(CompanionCopyTest, HoldsNothingWithoutACompanion)
{
    runFor(50ms);
    EXPECT_TRUE(offered().empty());
    EXPECT_EQ(m_copy->connection(), nullptr);
    EXPECT_EQ(m_changes, 0);
}

TEST_F(CompanionCopyTest, HoldsWhatACompanionSaysWhetherThatOrTheHostCameFirst)
{
    const auto companion = newCompanion({"a", "b"});
    companion->takeName();
    EXPECT_TRUE(offers({"a", "b"}));
    EXPECT_GT(m_changes, 0);

    m_copy = std::make_unique<CompanionCopy>([] {});
    EXPECT_TRUE(offers({"a", "b"}));
    EXPECT_TRUE(m_copy->settings().scope.containsItem("/listed/item"));
}

TEST_F(CompanionCopyTest, FollowsEachChange)
{
    const auto companion = newCompanion({});
    companion->takeName();
    for (const std::vector<std::string>& actions : {std::vector<std::string>{"a"}, {"a", "b"}, {}, {"c"}}) {
        companion->publish(offering(actions));
        companion->announce();
        EXPECT_TRUE(offers(actions));
    }
}

TEST_F(CompanionCopyTest, IsEmptyWhileTheCompanionIsGone)
{
    const auto companion = newCompanion({"a"});
    companion->takeName();
    ASSERT_TRUE(offers({"a"}));
    companion->leaveName();
    EXPECT_TRUE(offers({}));
    EXPECT_EQ(m_copy->connection(), nullptr);
    companion->publish(offering({"b"}));
    companion->takeName();
    EXPECT_TRUE(offers({"b"}));
}

TEST_F(CompanionCopyTest, TakesNoAnswerOfAFormerCompanion)
{
    const auto former = newCompanion({"former"});
    former->fallSilent();
    former->takeName();
    ASSERT_TRUE(waitUntil([&] { return former->questions() == 1; }));
    former->leaveName();
    const auto current = newCompanion({"current"});
    current->takeName();
    ASSERT_TRUE(offers({"current"}));

    former->goOn();
    former->announce();
    current->announce();
    // The question that follows the current one's announcement comes after everything that the former one sent.
    ASSERT_TRUE(waitUntil([&] { return current->questions() == 2; }));
    runFor(50ms);
    EXPECT_EQ(offered(), std::vector<std::string>{"current"});
    EXPECT_EQ(former->questions(), 1);
}

TEST_F(CompanionCopyTest, IsNotMovedByOthers)
{
    const auto companion = newCompanion({"a"});
    companion->takeName();
    ASSERT_TRUE(offers({"a"}));
    const auto other = newCompanion({"other"});
    other->announce();
    companion->announce();
    ASSERT_TRUE(waitUntil([&] { return companion->questions() == 2; }));
    runFor(50ms);
    EXPECT_EQ(companion->questions(), 2);
    EXPECT_EQ(other->questions(), 0);
}

TEST_F(CompanionCopyTest, LosesNoChangeThatComesWhileItAsks)
{
    const auto companion = newCompanion({"old"});
    companion->fallSilent();
    companion->takeName();
    ASSERT_TRUE(waitUntil([&] { return companion->questions() == 1; }));
    // The answer to the first question is the old one.
    companion->publish(offering({"new"}));
    for (int time = 0; time < 100; ++time)
        companion->announce();
    runFor(50ms);
    EXPECT_EQ(companion->questions(), 1);
    companion->goOn();
    EXPECT_TRUE(offers({"new"}));
    runFor(50ms);
    EXPECT_EQ(companion->questions(), 2);
}

TEST_F(CompanionCopyTest, GivesAThousandChangesASecondLittleOfTheHostsTime)
{
    const auto companion = newCompanion({"a"});
    companion->takeName();
    ASSERT_TRUE(offers({"a"}));
    const Heartbeat host;
    const int before = companion->questions();
    const gint64 begun = g_get_monotonic_time();
    for (int time = 0; time < 1000; ++time) {
        companion->announce();
        runFor(1ms);
    }
    const gint64 milliseconds = (g_get_monotonic_time() - begun) / 1000;
    // Between two questions lie five milliseconds.
    EXPECT_LE(companion->questions() - before, milliseconds / 5 + 1);
    EXPECT_GT(companion->questions() - before, 1);
    EXPECT_GT(host.beats(), 100);
    companion->publish(offering({"last"}));
    companion->announce();
    EXPECT_TRUE(offers({"last"}));
}

TEST_F(CompanionCopyTest, TakesGarbageForNothingAndRecovers)
{
    const auto companion = newCompanion({"a"});
    companion->takeName();
    ASSERT_TRUE(offers({"a"}));
    companion->publish(Properties().with("Actions", "'garbage'").with("Scope", "[1, 2]").with("Third", "<<{1: 2}>>"));
    companion->announce();
    EXPECT_TRUE(offers({}));
    companion->publish(offering({"b"}));
    companion->announce();
    EXPECT_TRUE(offers({"b"}));
}

TEST_F(CompanionCopyTest, OutlivesAsMuchGarbageAsTheBusCarries)
{
    const auto companion = newCompanion({"a"});
    companion->takeName();
    ASSERT_TRUE(offers({"a"}));
    const auto publish = [&](const Properties& properties) {
        companion->publish(properties);
        companion->announce();
    };
    constexpr int patience = 6;
    // An array on the bus has 64 MiB at most.
    const std::vector<std::string> titles{std::string(std::size_t(31) << 20U, 't')};
    publish(Properties().with("Actions", Properties::actions(titles)));
    EXPECT_TRUE(offers({}, patience));
    publish(offering({"b"}).with("More", Properties::actions(std::vector<std::string>(100'000, "many"))));
    EXPECT_TRUE(offers({"b"}, patience));
    publish(Properties().with("Actions", Properties::actions(std::vector<std::string>(100'000, "many"))));
    EXPECT_TRUE(offers({}, patience));
    publish(offering({"c"}));
    EXPECT_TRUE(offers({"c"}, patience));
}

TEST_F(CompanionCopyTest, WaitsForNoCompanionThatIsStopped)
{
    const auto companion = newCompanion({"a"});
    companion->takeName();
    ASSERT_TRUE(offers({"a"}));
    companion->fallSilent();
    companion->announce();
    ASSERT_TRUE(waitUntil([&] { return companion->questions() == 2; }));
    // What it said last still counts, and what is asked of it is sent.
    EXPECT_EQ(offered(), std::vector<std::string>{"a"});
    callRun(*m_copy->connection(), "a", {{"/listed/item"}, false}, {}, "token");
    EXPECT_TRUE(waitUntil([&] { return companion->calls().size() == 1; }));
    companion->publish(offering({"b"}));
    companion->announce();
    companion->goOn();
    EXPECT_TRUE(offers({"b"}));
}

TEST_F(CompanionCopyTest, IsEmptyAfterTheEndOfTheBus)
{
    const auto companion = newCompanion({"a"});
    companion->takeName();
    ASSERT_TRUE(offers({"a"}));
    m_bus.kill();
    EXPECT_TRUE(offers({}));
    // Nothing ends the host later either.
    runFor(50ms);
    EXPECT_EQ(m_copy->connection(), nullptr);
}

TEST_F(CompanionCopyTest, CanEndAtAnyTime)
{
    const auto companion = newCompanion({"a"});
    companion->fallSilent();
    companion->takeName();
    ASSERT_TRUE(waitUntil([&] { return companion->questions() == 1; }));
    m_copy.reset();
    companion->goOn();
    companion->announce();
    runFor(50ms);

    m_copy = std::make_unique<CompanionCopy>([] {});
    m_copy.reset();
    runFor(50ms);
}

TEST(CompanionCopy, HoldsNothingWithoutABus)
{
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus", 1);
    const CompanionCopy copy([] {});
    runFor(50ms);
    EXPECT_TRUE(copy.settings().actions.empty());
    EXPECT_EQ(copy.connection(), nullptr);
}
