#include "../bus/Waiting.h"
#include "CompanionProcess.h"

#include <csignal>
#include <fstream>
#include <iterator>

using namespace std::chrono_literals;

namespace {

/// How often a process has run and stopped running.
std::string switches(qint64 process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    std::string counts;
    for (std::string line; std::getline(status, line);) {
        if (line.find("ctxt_switches") != std::string::npos)
            counts += line + "\n";
    }
    return counts;
}

} // namespace

using Companion = CompanionTest;

TEST_F(Companion, OwnsItsNameUntilItIsAskedToQuit)
{
    QProcess& companion = startAndWait();
    quit();
    EXPECT_EQ(statusOf(companion), 0);
    EXPECT_FALSE(nameIsOwned());
    EXPECT_EQ(companion.readAllStandardOutput() + companion.readAllStandardError(), "");
}

TEST_F(Companion, LeavesThePlaceToTheOneThatRuns)
{
    QProcess& first = startAndWait();
    QProcess& second = start();
    EXPECT_EQ(statusOf(second), 0);
    EXPECT_EQ(second.readAllStandardError(), "orvik-menu-extension: it is running already\n");
    EXPECT_EQ(first.state(), QProcess::Running);

    // The second does not stand in line for the name either.
    quit();
    EXPECT_EQ(statusOf(first), 0);
    EXPECT_FALSE(nameIsOwned());
}

TEST_F(Companion, EndsWellOnTheSignalsThatAskForIt)
{
    for (const int ending : {SIGTERM, SIGINT, SIGHUP}) {
        QProcess& companion = startAndWait();
        ASSERT_EQ(::kill(static_cast<pid_t>(companion.processId()), ending), 0);
        EXPECT_EQ(statusOf(companion), 0) << ending;
        EXPECT_FALSE(nameIsOwned());
    }
}

TEST_F(Companion, EndsWellWithTheSession)
{
    QProcess& companion = startAndWait();
    m_daemon.kill();
    EXPECT_EQ(statusOf(companion), 0);
    EXPECT_EQ(companion.readAllStandardError(), "");
}

TEST_F(Companion, StartsAgainAfterItWasKilled)
{
    QProcess& killed = startAndWait();
    store({{"showinSubMenu", true}});
    killed.kill();
    EXPECT_EQ(statusOf(killed), -1);
    ASSERT_TRUE(waitUntil([&] { return !nameIsOwned(); }));

    QProcess& companion = startAndWait();
    EXPECT_TRUE(flag("ShowInSubmenu"));
    quit();
    EXPECT_EQ(statusOf(companion), 0);
}

TEST_F(Companion, SaysThatThereIsNoSessionBus)
{
    m_daemon.kill();
    QProcess& companion = start();
    EXPECT_EQ(statusOf(companion), 1);
    EXPECT_EQ(companion.readAllStandardError(), "orvik-menu-extension: there is no session bus\n");
}

TEST_F(Companion, SleepsWhileNothingHappens)
{
    QProcess& companion = startAndWait();
    store({{"showinSubMenu", true}});
    ASSERT_TRUE(waitUntil([&] { return flag("ShowInSubmenu"); }));
    runFor(200ms);
    const std::string before = switches(companion.processId());
    ASSERT_NE(before, "");
    runFor(3s);
    EXPECT_EQ(switches(companion.processId()), before);
}

TEST_F(Companion, ExplainsItselfOnStandardOutputWhenAsked)
{
    QProcess& help = start({QStringLiteral("--help")});
    EXPECT_EQ(statusOf(help), 0);
    EXPECT_TRUE(help.readAllStandardOutput().startsWith("Usage: orvik-menu-extension [OPTION]\n"));
    QProcess& version = start({QStringLiteral("--version")});
    EXPECT_EQ(statusOf(version), 0);
    EXPECT_TRUE(version.readAllStandardOutput().startsWith("orvik-menu-extension "));
}

TEST_F(Companion, RefusesACommandLineThatItDoesNotUnderstand)
{
    for (const QStringList& arguments :
         {QStringList{QStringLiteral("--loud")}, {QString()}, {QStringLiteral("--help"), QStringLiteral("more")}}) {
        QProcess& companion = start(arguments);
        EXPECT_EQ(statusOf(companion), 2) << arguments.join(u' ').toStdString();
        EXPECT_EQ(companion.readAllStandardOutput(), "");
        EXPECT_TRUE(companion.readAllStandardError().startsWith("orvik-menu-extension: unknown argument: "));
    }
}
