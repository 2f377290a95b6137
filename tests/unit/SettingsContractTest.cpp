// The texts that the panel and the extension must agree on.

#include "platform/URL.h"
#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/Settings.h"
#include "settings/SharedSuite.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
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

TEST(SettingsContract, TheExtensionsIdentifierIsInLowerCase)
{
    EXPECT_TRUE(std::ranges::none_of(Deployment::extensionIdentifier,
                                     [](char character) { return character >= 'A' && character <= 'Z'; }));
}

TEST(SettingsContract, TheMakersPagesAreWebAddressesOfTheirForms)
{
    EXPECT_TRUE(Deployment::webAddress.starts_with("http://"));
    EXPECT_EQ(Deployment::webAddress.size(), 27U);
    EXPECT_TRUE(Deployment::twitterAddress.starts_with("https://"));
    EXPECT_EQ(Deployment::twitterAddress.size(), 32U);
    EXPECT_TRUE(Deployment::facebookAddress.starts_with("https://"));
    EXPECT_EQ(Deployment::facebookAddress.size(), 37U);
}

TEST(SettingsContract, TheStoresPageEndsInTheApplicationsNumberThere)
{
    const std::string_view address = Deployment::storeAddress;
    EXPECT_TRUE(address.starts_with("macappstore://"));
    EXPECT_EQ(address.size(), 47U);

    const std::size_t before = address.rfind("/app/id");
    ASSERT_NE(before, std::string_view::npos);
    const std::string_view number = address.substr(before + std::string_view("/app/id").size());
    EXPECT_FALSE(number.empty());
    EXPECT_EQ(number.find_first_not_of("0123456789"), std::string_view::npos);
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
