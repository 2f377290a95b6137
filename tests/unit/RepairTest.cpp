#include "settings/Repair.h"

#include "settings/Settings.h"
#include "support/PrintValue.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace {

using Array = NS::Value::Array;
using Dictionary = NS::Value::Dictionary;

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

Dictionary mended(Dictionary suite)
{
    for (const Mend& mend : mendsOf(suite)) {
        EXPECT_FALSE(mend.wrong.empty());
        EXPECT_FALSE(mend.remedy.empty());
        if (mend.value)
            suite.insert_or_assign(std::string(mend.key), *mend.value);
        else
            suite.erase(std::string(mend.key));
    }
    EXPECT_TRUE(mendsOf(suite).empty()) << "a second repair finds more";
    return suite;
}

Dictionary folders(NS::Value paths, NS::Value flags)
{
    return {{"foldersArray", std::move(paths)}, {"foldersArraystate", std::move(flags)}};
}

TEST(Repair, FindsNothingInSettingsThatThePanelCanWorkWith)
{
    for (const Dictionary& sound :
         {Dictionary{}, folders(Array{}, Array{}), folders(Array{"/a", "/b"}, Array{1, 7}),
          folders(Array{"/a"}, Array{1.0}), folders(Array{"/a"}, Array{noNumber}),
          Dictionary{{"save14", Array{noNumber}}}, Dictionary{{"save14", Array{1, 0.5, 2}}},
          Dictionary{{"menuArrayDic", "of the wrong kind"}, {"arrCustomFoldersUrls", 1}, {"somebodyElses", true}}})
        EXPECT_TRUE(mendsOf(sound).empty()) << testing::PrintToString(NS::Value(sound));
}

TEST(Repair, GivesAFolderWithoutAFlagOne)
{
    EXPECT_EQ(mended(folders(Array{"/a", "/b", "/c"}, Array{0})), folders(Array{"/a", "/b", "/c"}, Array{0, 1, 1}));
    EXPECT_EQ(mended({{"foldersArray", Array{"/a"}}}), folders(Array{"/a"}, Array{1}));
}

TEST(Repair, CutsFlagsThatBelongToNoFolder)
{
    EXPECT_EQ(mended(folders(Array{"/a"}, Array{0, 1, 1})), folders(Array{"/a"}, Array{0}));
    EXPECT_EQ(mended({{"foldersArraystate", Array{1}}}), (Dictionary{{"foldersArraystate", Array{}}}));
}

TEST(Repair, DropsWhatIsNoPathWithTheFlagOfItsPlace)
{
    EXPECT_EQ(mended(folders(Array{"/a", 1, "/b"}, Array{0, 1, 0})), folders(Array{"/a", "/b"}, Array{0, 0}));
}

TEST(Repair, SwitchesAFolderOnWhoseFlagIsNoNumber)
{
    EXPECT_EQ(mended(folders(Array{"/a", "/b", "/c"}, Array{0, "0", 0})),
              folders(Array{"/a", "/b", "/c"}, Array{0, 1, 0}));
    EXPECT_EQ(mended(folders(Array{"/a", "/b"}, Array{true, 0})), folders(Array{"/a", "/b"}, Array{1, 0}));
}

TEST(Repair, RemovesWhatIsNoList)
{
    EXPECT_EQ(mended(folders("/a", Array{})), (Dictionary{{"foldersArraystate", Array{}}}));
    EXPECT_EQ(mended(folders(Array{"/a", "/b"}, 1)), folders(Array{"/a", "/b"}, Array{1, 1}));
    EXPECT_EQ(mended({{"save14", "1"}}), Dictionary{});
}

TEST(Repair, SwitchesAnOlderMenuItemOnWhoseFlagIsNoNumber)
{
    EXPECT_EQ(mended({{"save14", Array{0, "0", 0, false}}}), (Dictionary{{"save14", Array{0, 1, 0, 1}}}));
}

TEST(Repair, LeavesAnOlderListAloneThatIsNeverReadBesideTheNewerOne)
{
    for (const NS::Value& newer : {NS::Value(Array{Dictionary{{"title", "x"}}}), NS::Value("of the wrong kind")}) {
        for (const NS::Value& older : {NS::Value("no list"), NS::Value(Array{"0"})})
            EXPECT_TRUE(mendsOf({{"menuArrayDic", newer}, {"save14", older}}).empty());
    }
}

TEST(Repair, LeavesEverythingElseAlone)
{
    Dictionary suite = folders(Array{"/a"}, Array{});
    suite.insert({{"menuArrayDic", Array{Dictionary{{"title", "x"}}}}, {"allBookmark", 5}, {"other", "y"}});

    Dictionary expected = suite;
    expected.insert_or_assign("foldersArraystate", Array{1});
    EXPECT_EQ(mended(suite), expected);
}

} // namespace
