// The texts that the panel and the extension must agree on.

#include "platform/URL.h"
#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/Settings.h"
#include "settings/SharedSuite.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

TEST(SettingsContract, KeysReadExactlySo)
{
    EXPECT_EQ(Settings::menuArrayDic.key, "menuArrayDic");
    EXPECT_EQ(Settings::save14.key, "save14");
    EXPECT_EQ(Settings::foldersArray.key, "foldersArray");
    EXPECT_EQ(Settings::foldersArraystate.key, "foldersArraystate");
    EXPECT_EQ(Settings::allBookmark.key, "allBookmark");
    EXPECT_EQ(Settings::arrCustomFoldersUrls.key, "arrCustomFoldersUrls");
    EXPECT_EQ(Settings::showmenuicon.key, "showmenuicon");
    EXPECT_EQ(Settings::showinSubMenu.key, "showinSubMenu");
    EXPECT_EQ(Settings::mailAttachPath.key, "mailAttachPath");
    EXPECT_EQ(Settings::AttachClickedDate.key, "AttachClickedDate");
    EXPECT_EQ(Settings::firstRun.key, "firstRun");
    EXPECT_EQ(MenuItemSettings::title.key, "title");
    EXPECT_EQ(MenuItemSettings::state.key, "state");
}

TEST(SettingsContract, NotificationNamesReadExactlySo)
{
    EXPECT_EQ(NotificationName::AttachFileToMail, "AttachFileToMail");
    EXPECT_EQ(NotificationName::ShowUtilityKit, "ShowUtilityKit");
    EXPECT_EQ(NotificationName::ReloadCustomFolders, "ReloadCustomFolders");
}

TEST(SettingsContract, EveryPageIsAnAddress)
{
    for (const std::string_view address :
         {Deployment::webAddress, Deployment::twitterAddress, Deployment::facebookAddress, Deployment::storeAddress})
        EXPECT_TRUE(NS::URL::URLWithString(address)) << address;
}

TEST(SharedSuite, IsOpenedByNameAndAnewEachTime)
{
    FakePlatform platform;

    const auto first = openSharedSuite();
    const auto second = openSharedSuite();

    EXPECT_NE(first, second);
    EXPECT_EQ(platform.calls.lines(), std::vector<std::string>(2, opensSharedSuite));
}

TEST(SharedSuite, IsNothingWhereItCannotBeRead)
{
    FakePlatform platform;
    platform.suiteCanBeRead = false;
    EXPECT_FALSE(openSharedSuite());
}

} // namespace
