#include "extensions/FileManagerStatus.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace ExtensionsTool;
using MenuExtension::BridgeStatus;
using MenuExtension::FileManager;

namespace {

const FileManager& nemo = MenuExtension::fileManagers.at(1);
const FileManager& dolphin = MenuExtension::fileManagers.at(4);

std::string words(const FileManager& manager, const FileManagerStatus& status)
{
    return inWords(manager, status).toStdString();
}

} // namespace

TEST(FileManagerStatus, IsToldInWords)
{
    EXPECT_EQ(words(nemo, {BridgeStatus::NoFileManager}), "It is not installed.");
    EXPECT_EQ(words(nemo, {BridgeStatus::NotInstalled}), "The menu is missing. Install the package orvik-menu-nemo.");
    EXPECT_EQ(words(nemo, {BridgeStatus::NotRunning}), "It is not running. It loads the menu when it starts.");
    EXPECT_EQ(words(dolphin, {BridgeStatus::LoadedLater}), "It loads the menu when it needs it.");
    EXPECT_EQ(words(nemo, {BridgeStatus::Loaded}), "It has loaded the menu.");
    EXPECT_EQ(words(nemo, {BridgeStatus::NotLoaded}),
              "It is running without the menu. Restarting it closes its windows and stops any copying.");
    EXPECT_EQ(words(nemo, {BridgeStatus::OlderLoaded}),
              "It has loaded an older version of the menu. Restarting it closes its windows and stops any copying.");
    EXPECT_EQ(words(dolphin, {BridgeStatus::OlderLoaded}),
              "It has loaded an older version of the menu. Close it and open it again.");
    EXPECT_EQ(words(nemo, {BridgeStatus::NotKnown}), "It is running. Whether it has loaded the menu is not known.");
}

TEST(FileManagerStatus, TellsWhatIsBeingDoneAndWhatWentWrong)
{
    EXPECT_EQ(words(nemo, {.bridge = BridgeStatus::NotLoaded, .isClosing = true}), "Closing…");
    EXPECT_EQ(words(nemo, {.bridge = BridgeStatus::NotLoaded, .trouble = QStringLiteral("It broke.")}), "It broke.");
}

TEST(FileManagerStatus, NeedsAttentionWhereAPersonHasToDoSomething)
{
    for (const BridgeStatus status : {BridgeStatus::NotInstalled, BridgeStatus::NotLoaded, BridgeStatus::OlderLoaded})
        EXPECT_TRUE(needsAttention({status}));
    for (const BridgeStatus status : {BridgeStatus::NoFileManager, BridgeStatus::NotRunning,
                                      BridgeStatus::LoadedLater, BridgeStatus::Loaded, BridgeStatus::NotKnown})
        EXPECT_FALSE(needsAttention({status}));
    EXPECT_FALSE(needsAttention({.bridge = BridgeStatus::NotLoaded, .isClosing = true}));
}

TEST(FileManagerStatus, OffersARestartOnlyWhereThatHelpsAndCanBeDone)
{
    EXPECT_TRUE(offersRestart(nemo, {BridgeStatus::NotLoaded}));
    EXPECT_TRUE(offersRestart(nemo, {BridgeStatus::OlderLoaded}));
    EXPECT_FALSE(offersRestart(nemo, {BridgeStatus::Loaded}));
    EXPECT_FALSE(offersRestart(nemo, {BridgeStatus::NotInstalled}));
    EXPECT_FALSE(offersRestart(dolphin, {BridgeStatus::OlderLoaded})) << "it has no option that ends it";
}
