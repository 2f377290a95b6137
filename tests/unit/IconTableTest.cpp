#include "menu/IconTable.h"

#include "settings/MenuCatalogue.h"
#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace {

class IconTableTest : public testing::Test {
protected:
    FakePlatform platform;
};

TEST_F(IconTableTest, HasEighteenTitles)
{
    EXPECT_EQ(IconTable().size(), 18U);
}

TEST_F(IconTableTest, GivesEveryActionOfTheCatalogueItsImage)
{
    const IconTable table;
    for (const CatalogueRow& action : menuCatalogue)
        EXPECT_EQ(table.imageForTitle(action.title), NS::Image(std::string(action.image))) << action.title;
}

TEST_F(IconTableTest, GivesHidingAndUnhidingTheImageOfBoth)
{
    const IconTable table;
    for (const char* title : {"Hide / Unhide item", "Hide item", "Unhide item"})
        EXPECT_EQ(table.imageForTitle(title), NS::Image("12")) << title;
}

class ATitleOfNoAction : public IconTableTest, public testing::WithParamInterface<const char*> {};

TEST_P(ATitleOfNoAction, HasNoImage)
{
    EXPECT_EQ(IconTable().imageForTitle(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(EachKind, ATitleOfNoAction,
                         testing::Values("", "open terminal", "Open Terminal ", "OPEN TERMINAL", "Move To A Folder",
                                         "hide item", "Hide", "1", "View or Edit EXIF Data"));

TEST_F(IconTableTest, LoadsEveryImageWhenItIsBuiltAndNoneWhenItIsAsked)
{
    const IconTable table;
    EXPECT_EQ(platform.calls.startingWith("platform.imageNamed").size(), 18U);
    platform.calls.clear();

    static_cast<void>(table.imageForTitle("Open Terminal"));
    static_cast<void>(table.imageForTitle("nothing"));

    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(IconTableTest, AsksForNoImageThatBelongsToNoAction)
{
    platform.missingImages = {"2", "3", "8"};
    EXPECT_EQ(IconTable().size(), 18U);
}

TEST_F(IconTableTest, TheProcessHasOneThatIsBuiltOnce)
{
    const IconTable& first = iconTable();
    platform.calls.clear();

    EXPECT_EQ(&iconTable(), &first);
    EXPECT_TRUE(platform.calls.lines().empty());
}

class AMissingImageDeathTest : public IconTableTest, public testing::WithParamInterface<const char*> {};

TEST_P(AMissingImageDeathTest, IsFatalAndNamed)
{
    platform.missingImages = {GetParam()};
    EXPECT_DEATH(IconTable(), fatalLine("the image \"" + std::string(GetParam()) + "\" is missing"));
}

INSTANTIATE_TEST_SUITE_P(Each, AMissingImageDeathTest,
                         testing::Values("1", "system-preferences-icon", "4", "5", "6", "7", "9", "10", "11", "12",
                                         "13", "14", "15", "16", "NSActionTemplate", "NSAddTemplate"),
                         [](const auto& tested) {
                             std::string name = tested.param;
                             std::erase(name, '-');
                             return name;
                         });

} // namespace
