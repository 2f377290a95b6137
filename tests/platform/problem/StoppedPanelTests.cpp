#include "platform/bus/Waiting.h"

#include "platform/linux/program/LastWords.h"
#include "problem/StoppedPanel.h"

#include <QObject>

#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using ProblemTool::StoppedPanel;

/// A process that stays until it is ended.
class Child {
public:
    Child() : m_id(::fork())
    {
        if (m_id == 0) {
            for (;;)
                ::pause();
        }
    }
    ~Child() { end(); }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    [[nodiscard]] pid_t id() const { return m_id; }
    void end()
    {
        kill();
        ::waitpid(m_id, nullptr, 0);
    }
    void kill() const { ::kill(m_id, SIGKILL); }

private:
    pid_t m_id;
};

StoppedPanel stoppedPanel(pid_t process)
{
    qputenv(LinuxDesktop::fatalErrorVariable, "what it said");
    qputenv(LinuxDesktop::fatalProcessVariable, QByteArray::number(process));
    return StoppedPanel();
}

TEST(StoppedPanel, IsNotWaitedForOnceItHasEnded)
{
    Child process;
    process.end();
    const StoppedPanel panel = stoppedPanel(process.id());
    QObject context;
    bool called = false;
    EXPECT_TRUE(panel.whenEnded(context, [&] { called = true; }));
    EXPECT_TRUE(called);
}

TEST(StoppedPanel, IsNotWaitedForOnceItHasEndedAlsoWhereNobodyHasAskedHow)
{
    Child process;
    const StoppedPanel panel = stoppedPanel(process.id());
    process.kill();
    siginfo_t how{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(process.id()), &how, WEXITED | WNOWAIT), 0);
    QObject context;
    bool called = false;
    EXPECT_TRUE(panel.whenEnded(context, [&] { called = true; }));
    EXPECT_TRUE(called);
}

TEST(StoppedPanel, HoldsNothingUpWhileItEnds)
{
    Child process;
    const StoppedPanel panel = stoppedPanel(process.id());
    QObject context;
    int calls = 0;
    EXPECT_FALSE(panel.whenEnded(context, [&] { ++calls; }));
    EXPECT_EQ(calls, 0);
    runFor(std::chrono::milliseconds(20));
    EXPECT_EQ(calls, 0);

    process.end();
    EXPECT_TRUE(waitUntil([&] { return calls > 0; }));
    runFor(std::chrono::milliseconds(20));
    EXPECT_EQ(calls, 1);
}

TEST(StoppedPanel, TellsNobodyWhoHasGone)
{
    Child process;
    const StoppedPanel panel = stoppedPanel(process.id());
    auto context = std::make_unique<QObject>();
    bool called = false;
    EXPECT_FALSE(panel.whenEnded(*context, [&] { called = true; }));
    context.reset();
    process.end();
    runFor(std::chrono::milliseconds(20));
    EXPECT_FALSE(called);
}

TEST(StoppedPanel, IsNobodyWhereNoneWasTold)
{
    const StoppedPanel panel;
    EXPECT_EQ(panel.words(), QString());
    QObject context;
    EXPECT_TRUE(panel.whenEnded(context, [] {}));
}

TEST(StoppedPanel, IsNotToldOfToOtherProcesses)
{
    const StoppedPanel panel = stoppedPanel(::getpid());
    EXPECT_EQ(panel.words(), QStringLiteral("what it said"));
    EXPECT_FALSE(qEnvironmentVariableIsSet(LinuxDesktop::fatalErrorVariable));
    EXPECT_FALSE(qEnvironmentVariableIsSet(LinuxDesktop::fatalProcessVariable));
}

} // namespace
