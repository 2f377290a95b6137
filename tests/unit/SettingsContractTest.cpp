// The texts that the panel and the extension must agree on.

#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/SettingsKeys.h"
#include "settings/SharedSuite.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(SettingsContract, KeysReadExactlySo)
{
    EXPECT_EQ(SettingsKey::menuArrayDic, "menuArrayDic");
    EXPECT_EQ(SettingsKey::save14, "save14");
    EXPECT_EQ(SettingsKey::foldersArray, "foldersArray");
    EXPECT_EQ(SettingsKey::foldersArraystate, "foldersArraystate");
    EXPECT_EQ(SettingsKey::allBookmark, "allBookmark");
    EXPECT_EQ(SettingsKey::arrCustomFoldersUrls, "arrCustomFoldersUrls");
    EXPECT_EQ(SettingsKey::showmenuicon, "showmenuicon");
    EXPECT_EQ(SettingsKey::showinSubMenu, "showinSubMenu");
    EXPECT_EQ(SettingsKey::mailAttachPath, "mailAttachPath");
    EXPECT_EQ(SettingsKey::AttachClickedDate, "AttachClickedDate");
    EXPECT_EQ(SettingsKey::firstRun, "firstRun");
    EXPECT_EQ(MenuItemKey::title, "title");
    EXPECT_EQ(MenuItemKey::state, "state");
}

TEST(SettingsContract, NotificationNamesReadExactlySo)
{
    EXPECT_EQ(NotificationName::AttachFileToMail, "AttachFileToMail");
    EXPECT_EQ(NotificationName::ShowUtilityKit, "ShowUtilityKit");
    EXPECT_EQ(NotificationName::ReloadCustomFolders, "ReloadCustomFolders");
}

TEST(SettingsContract, TheExtensionsIdentifierIsTheApplicationsWithItsSuffix)
{
    EXPECT_EQ(Deployment::extensionIdentifier,
              std::string(Deployment::applicationIdentifier) + ".findersyncextension");
    EXPECT_EQ(Deployment::extensionIdentifier.size(), 45U);
}

TEST(SettingsContract, TheSuiteIsNamedByTheTeamAndTheApplication)
{
    EXPECT_EQ(Deployment::suiteName, "ORVIK4MENU." + std::string(Deployment::applicationIdentifier));
    EXPECT_EQ(Deployment::suiteName.size(), 36U);
}

TEST(SharedSuite, IsOpenedByNameAndAnewEachTime)
{
    FakePlatform platform;

    const auto first = openSharedSuite();
    const auto second = openSharedSuite();

    EXPECT_NE(first, second);
    EXPECT_EQ(
        platform.calls.lines(),
        std::vector<std::string>(2, R"(platform.userDefaultsWithSuiteName("ORVIK4MENU.com.orvikstudio.orvikmenu"))"));
}

TEST(SharedSuite, IsNothingWhereItCannotBeRead)
{
    FakePlatform platform;
    platform.suiteCanBeRead = false;
    EXPECT_FALSE(openSharedSuite());
}

} // namespace
