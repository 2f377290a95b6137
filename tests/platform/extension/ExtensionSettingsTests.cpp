#include "extension/companion/ExtensionSettings.h"

#include <gtest/gtest.h>
#include <string>

using namespace MenuExtension;
using Array = NS::Value::Array;
using Dictionary = NS::Value::Dictionary;

namespace {

Dictionary suiteWith(std::string_view key, NS::Value value)
{
    return {{std::string(key), std::move(value)}};
}

NS::Value item(NS::Value title, NS::Value state)
{
    return Dictionary{{"title", std::move(title)}, {"state", std::move(state)}};
}

} // namespace

TEST(ExtensionSettings, AreTheDefaultsWhereNothingIsStored)
{
    const ExtensionSettings settings = settingsFromSuite({});
    EXPECT_TRUE(settings.showMenuIcon);
    EXPECT_FALSE(settings.showInSubmenu);
    EXPECT_TRUE(settings.menuItems.empty());
    EXPECT_TRUE(settings.folders.empty());
    EXPECT_TRUE(settings.customFolders.empty());
}

TEST(ExtensionSettings, AreWhatIsStored)
{
    const ExtensionSettings settings = settingsFromSuite({
        {"menuArrayDic", Array{item("Open Terminal", true), item("Resize Photos", false)}},
        {"foldersArray", Array{"/home/a", "/home/b c"}},
        {"foldersArraystate", Array{1, 0}},
        {"arrCustomFoldersUrls", Array{"/x", "file:///y"}},
        {"showmenuicon", false},
        {"showinSubMenu", true},
        {"somebodyElses", 1},
    });
    EXPECT_EQ(settings, (ExtensionSettings{.menuItems = {{"Open Terminal", true}, {"Resize Photos", false}},
                                           .folders = {{"/home/a", true}, {"/home/b c", false}},
                                           .customFolders = {"/x", "file:///y"},
                                           .showMenuIcon = false,
                                           .showInSubmenu = true}));
}

TEST(ExtensionSettings, AreTheDefaultsWhereAValueIsOfTheWrongKind)
{
    const Array wrongKinds{1, 0.5, "text", NS::Date{0}, NS::Data{1}, Dictionary{{"a", 1}}};
    for (const std::string_view key :
         {Settings::menuArrayDic.key, Settings::foldersArray.key, Settings::foldersArraystate.key,
          Settings::arrCustomFoldersUrls.key, Settings::showmenuicon.key, Settings::showinSubMenu.key}) {
        for (const NS::Value& wrong : wrongKinds)
            EXPECT_EQ(settingsFromSuite(suiteWith(key, wrong)), ExtensionSettings{}) << key;
    }
    for (const std::string_view key :
         {Settings::menuArrayDic.key, Settings::foldersArray.key, Settings::arrCustomFoldersUrls.key})
        EXPECT_EQ(settingsFromSuite(suiteWith(key, true)), ExtensionSettings{}) << key;
    for (const std::string_view key : {Settings::showmenuicon.key, Settings::showinSubMenu.key})
        EXPECT_EQ(settingsFromSuite(suiteWith(key, Array{true})), ExtensionSettings{}) << key;
}

TEST(ExtensionSettings, LeaveOutElementsOfTheWrongKind)
{
    const ExtensionSettings settings = settingsFromSuite({
        {"menuArrayDic", Array{1, item(2, true), Dictionary{{"state", true}}, item("Kept", true)}},
        {"foldersArray", Array{true, "relative", "", "/kept"}},
        {"arrCustomFoldersUrls", Array{NS::Data{1}, "/kept"}},
    });
    EXPECT_EQ(settings.menuItems, (std::vector<MenuItem>{{"Kept", true}}));
    EXPECT_EQ(settings.folders, (std::vector<Folder>{{"/kept", true}}));
    EXPECT_EQ(settings.customFolders, std::vector<std::string>{"/kept"});
}

TEST(ExtensionSettings, SwitchAnItemOffWhoseStateIsNoBoolean)
{
    const ExtensionSettings settings =
        settingsFromSuite(suiteWith("menuArrayDic", Array{item("One", 1), Dictionary{{"title", "Other"}}}));
    EXPECT_EQ(settings.menuItems, (std::vector<MenuItem>{{"One", false}, {"Other", false}}));
}

TEST(ExtensionSettings, PairFoldersWithTheirStatesByPosition)
{
    const ExtensionSettings settings = settingsFromSuite({
        {"foldersArray", Array{"/a", 7, "/b", "/c", "/d", "/e"}},
        {"foldersArraystate", Array{0, 0, 1, 2, "0"}},
    });
    EXPECT_EQ(settings.folders,
              (std::vector<Folder>{{"/a", false}, {"/b", true}, {"/c", false}, {"/d", true}, {"/e", true}}));
}
