#include "extension/companion/StatusReport.h"

#include "CompanionProcess.h"

#include <algorithm>

using namespace MenuExtension;

namespace {

constexpr BridgeStatuses nothingInstalled{};

std::string reportWith(BridgeStatus status)
{
    BridgeStatuses bridges{};
    bridges.fill(status);
    return statusReport(CompanionStatus::Running, bridges);
}

/// What is said of the companion alone.
std::string beginningOf(CompanionStatus companion)
{
    const std::string report = statusReport(companion, nothingInstalled);
    return report.substr(0, report.find("nautilus"));
}

} // namespace

TEST(StatusReport, HasALineForTheCompanionAndForEachFileManager)
{
    EXPECT_EQ(statusReport(CompanionStatus::Running, nothingInstalled), "companion: running\n"
                                                                        "nautilus: not installed\n"
                                                                        "nemo: not installed\n"
                                                                        "caja: not installed\n"
                                                                        "thunar: not installed\n"
                                                                        "dolphin: not installed\n");
}

TEST(StatusReport, SaysUnderEachWhatToDo)
{
    EXPECT_EQ(statusReport(CompanionStatus::NotRunning,
                           {BridgeStatus::OlderLoaded, BridgeStatus::NotLoaded, BridgeStatus::NotInstalled,
                            BridgeStatus::NotKnown, BridgeStatus::OlderLoaded}),
              "companion: not running\n"
              "  Switch it on: orvik-menu-extensions\n"
              "nautilus: installed, bridge installed, older one loaded\n"
              "  Restart Files: nautilus -q\n"
              "nemo: installed, bridge installed, not loaded\n"
              "  Restart Nemo: nemo -q\n"
              "caja: installed, bridge missing\n"
              "  Install the package orvik-menu-caja.\n"
              "thunar: installed, bridge installed, not known whether loaded\n"
              "  Restart Thunar: thunar -q\n"
              "dolphin: installed, bridge installed, older one loaded\n"
              "  Close Dolphin and open it again.\n");
}

TEST(StatusReport, HasNothingToDoWhereNothingIsMissing)
{
    for (const BridgeStatus status : {BridgeStatus::NotRunning, BridgeStatus::LoadedLater, BridgeStatus::Loaded}) {
        const std::string report = reportWith(status);
        EXPECT_EQ(std::ranges::count(report, '\n'), 6) << report;
    }
    EXPECT_NE(reportWith(BridgeStatus::NotRunning).find("nemo: installed, bridge installed, not running\n"),
              std::string::npos);
    EXPECT_NE(
        reportWith(BridgeStatus::LoadedLater).find("dolphin: installed, bridge installed, loaded when needed\n"),
        std::string::npos);
    EXPECT_NE(reportWith(BridgeStatus::Loaded).find("caja: installed, bridge installed, loaded\n"),
              std::string::npos);
}

TEST(StatusReport, SaysThatThereIsNoSessionBus)
{
    EXPECT_EQ(beginningOf(CompanionStatus::NoSessionBus).substr(0, 26), "companion: no session bus\n");
}

using StatusCommand = CompanionTest;

TEST_F(StatusCommand, AsksTheBusForTheCompanion)
{
    QProcess& asked = start({QStringLiteral("--status")});
    EXPECT_EQ(statusOf(asked), 0);
    const std::string report = asked.readAllStandardOutput().toStdString();
    EXPECT_TRUE(report.starts_with(beginningOf(CompanionStatus::NotRunning))) << report;
    EXPECT_EQ(asked.readAllStandardError(), "");

    startAndWait();
    QProcess& askedAgain = start({QStringLiteral("--status")});
    EXPECT_EQ(statusOf(askedAgain), 0);
    EXPECT_TRUE(askedAgain.readAllStandardOutput().startsWith("companion: running\nnautilus: "));
    EXPECT_TRUE(nameIsOwned()) << "it asks, and changes nothing";
}

TEST_F(StatusCommand, AnswersWithoutASessionBus)
{
    m_daemon.kill();
    QProcess& asked = start({QStringLiteral("--status")});
    EXPECT_EQ(statusOf(asked), 0);
    const std::string report = asked.readAllStandardOutput().toStdString();
    EXPECT_TRUE(report.starts_with(beginningOf(CompanionStatus::NoSessionBus))) << report;
    EXPECT_NE(report.find("\ndolphin: "), std::string::npos);
    EXPECT_EQ(asked.readAllStandardError(), "");
}
