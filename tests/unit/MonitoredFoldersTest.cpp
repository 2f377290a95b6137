#include "folders/MonitoredFolders.h"

#include "settings/Deployment.h"
#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using Paths = std::vector<std::string>;
using Flags = std::vector<std::int64_t>;
using Added = MonitoredFolders::Added;

class Folders : public testing::Test {
protected:
    [[nodiscard]] MonitoredFolders made() const { return MonitoredFolders(runBookmarks); }

    void store(const NS::Value::Array& paths, const NS::Value::Array& flags)
    {
        platform.suite.insert_or_assign("foldersArray", paths);
        platform.suite.insert_or_assign("foldersArraystate", flags);
    }
    void load() { folders.load(platform.userDefaultsWithSuiteName("suite").get()); }
    void loadWith(const NS::Value::Array& paths, const NS::Value::Array& flags)
    {
        store(paths, flags);
        load();
        platform.calls.clear();
    }

    Added add(const char* path) { return folders.add(NS::URL::fileURLWithPath(path)); }
    /// What standard output gets while the folder is added.
    std::string printedByAdding(const char* path)
    {
        testing::internal::CaptureStdout();
        add(path);
        return testing::internal::GetCapturedStdout();
    }

    void expectInMemory(const Paths& paths, const Flags& flags) const
    {
        EXPECT_EQ(folders.arrurl, paths);
        EXPECT_EQ(folders.arrstate, flags);
    }
    void expectStored(const NS::Value::Array& paths, const NS::Value::Array& flags) const
    {
        EXPECT_EQ(platform.suite.at("foldersArray"), paths);
        EXPECT_EQ(platform.suite.at("foldersArraystate"), flags);
    }
    [[nodiscard]] std::optional<Paths> published()
    {
        const auto& urls = platform.defaultController().published;
        if (!urls)
            return std::nullopt;
        Paths paths;
        for (const NS::URL& url : *urls)
            paths.push_back(url.path());
        return paths;
    }
    [[nodiscard]] static NS::Data bytes(std::string_view text) { return {text.begin(), text.end()}; }

    /// The statement of a death test that expects nothing to reach the platform before the end.
    template<class Statement>
    void withoutACall(Statement statement)
    {
        platform.calls.echoOnStandardError();
        statement();
    }

    FakePlatform platform;
    std::shared_ptr<RunBookmarks> runBookmarks = std::make_shared<RunBookmarks>();
    MonitoredFolders folders = made();
};

const std::string suiteOpened = "platform.userDefaultsWithSuiteName(\"" + std::string(Deployment::suiteName) + "\")";
const Lines bothListsWritten{R"(suite#1.setObject_forKey("foldersArray"))", "suite#1.synchronize",
                             R"(suite#1.setObject_forKey("foldersArraystate"))", "suite#1.synchronize"};

// Loading.

TEST_F(Folders, BeginEmptyUnderTheirTwoKeysAndAskNothing)
{
    expectInMemory({}, {});
    EXPECT_EQ(folders.count(), 0);
    EXPECT_EQ(folders.userdefaultskey, "foldersArray");
    EXPECT_EQ(folders.userdefaultsstate, "foldersArraystate");
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(Folders, LoadBothListsAsTheyStand)
{
    store({"/b", "/a", "/a"}, {0, 1, 7});

    load();

    expectInMemory({"/b", "/a", "/a"}, {0, 1, 7});
}

TEST_F(Folders, LoadingReadsThePathsThenTheFlagsAndWritesAndPublishesNothing)
{
    store({"/a"}, {1});

    load();

    EXPECT_EQ(
        platform.calls.startingWithAnyOf({"suite#", "finderSync."}),
        (Lines{R"(suite#1.objectForKey("foldersArray"))", R"(suite#1.objectForKey("foldersArray"))",
               R"(suite#1.objectForKey("foldersArraystate"))", R"(suite#1.objectForKey("foldersArraystate"))"}));
    EXPECT_FALSE(published());
}

TEST_F(Folders, FlagsMayBeNumbersOfEitherKind)
{
    store({"/a", "/b", "/c", "/d", "/e"}, {1.0, 0.0, 1.9, -1e300, std::uint64_t{1} << 63U});
    load();
    EXPECT_EQ(folders.arrstate, (Flags{1, 0, 1, 0, 0}));
}

TEST_F(Folders, AMissingKeyLeavesItsListEmpty)
{
    platform.suite.insert_or_assign("foldersArraystate", NS::Value::Array{1, 0});
    load();
    expectInMemory({}, {1, 0});

    folders = made();
    platform.suite = {{"foldersArray", NS::Value::Array{"/a"}}};
    load();
    expectInMemory({"/a"}, {});
}

TEST_F(Folders, WithoutASuiteBothListsStayEmpty)
{
    store({"/a"}, {1});

    folders.load(nullptr);

    expectInMemory({}, {});
}

TEST_F(Folders, ListsOfDifferentLengthsAreLoaded)
{
    store({"/a"}, {1, 0, 1});
    load();
    expectInMemory({"/a"}, {1, 0, 1});
}

TEST_F(Folders, AreReadAndWrittenUnderTheKeysOfTheTwoFields)
{
    platform.suite = {{"paths", NS::Value::Array{"/a"}}, {"flags", NS::Value::Array{0}}};
    folders.userdefaultskey = "paths";
    folders.userdefaultsstate = "flags";

    load();
    expectInMemory({"/a"}, {0});
    folders.removeAt(0);
    EXPECT_EQ(platform.suite, (NS::Value::Dictionary{{"paths", NS::Value::Array{}}, {"flags", NS::Value::Array{}}}));
    add("/b");
    folders.toggleAt(0);
    folders.storeFlags();

    EXPECT_EQ(platform.suite.at("paths"), (NS::Value::Array{"/b"}));
    EXPECT_EQ(platform.suite.at("flags"), (NS::Value::Array{0}));
    EXPECT_EQ(platform.calls.containing("foldersArray"), Lines{});
}

// Adding.

TEST_F(Folders, ANewOneIsActiveAndLast)
{
    loadWith({"/b"}, {0});

    EXPECT_EQ(add("/a"), Added::Yes);

    expectInMemory({"/b", "/a"}, {0, 1});
    expectStored({"/b", "/a"}, {0, 1});
    EXPECT_EQ(folders.count(), 2);
    EXPECT_EQ(published(), (Paths{"/a", "/b"}));
}

TEST_F(Folders, AddingWritesThePathsThenTheFlagsThenTheBookmarkThroughOneHandleThenPublishes)
{
    add("/home/pat/Docs");

    EXPECT_EQ(platform.calls.lines(),
              (Lines{suiteOpened, bothListsWritten[0], bothListsWritten[1], bothListsWritten[2], bothListsWritten[3],
                     R"(platform.bookmarkDataWithOptions("/home/pat/Docs", 2048))",
                     R"(suite#1.setObject_forKey("allBookmark"))", "suite#1.synchronize",
                     R"(finderSync.setDirectoryURLs(["/home/pat/Docs"]))"}));
}

TEST_F(Folders, EachChangeOpensAFreshHandle)
{
    add("/a");
    add("/b");
    folders.removeAt(0);
    folders.storeFlags();

    EXPECT_EQ(
        platform.calls.containing(R"(setObject_forKey("foldersArraystate"))"),
        (Lines{R"(suite#1.setObject_forKey("foldersArraystate"))", R"(suite#2.setObject_forKey("foldersArraystate"))",
               R"(suite#3.setObject_forKey("foldersArraystate"))",
               R"(suite#4.setObject_forKey("foldersArraystate"))"}));
}

TEST_F(Folders, OneThatIsListedIsNotAddedAndNothingHappens)
{
    add("/a");
    add("/b");
    folders.toggleAt(0);
    const auto stored = platform.suite;
    const auto bookmarks = *runBookmarks;
    const auto set = published();
    platform.calls.clear();

    EXPECT_EQ(printedByAdding("/a"), "");
    EXPECT_EQ(add("/b"), Added::AlreadyPresent);

    expectInMemory({"/a", "/b"}, {0, 1});
    EXPECT_EQ(platform.suite, stored);
    EXPECT_EQ(*runBookmarks, bookmarks);
    EXPECT_EQ(published(), set);
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(Folders, PathsThatAreCanonicallyEquivalentAreTheSame)
{
    loadWith({"/caf\u00e9"}, {1});

    EXPECT_EQ(add("/cafe\u0301"), Added::AlreadyPresent);
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(Folders, PathsThatDifferInCaseOrSpacesOrDotsAreDifferent)
{
    loadWith({"/Users/a/docs"}, {1});

    for (const char* other :
         {"/Users/a/Docs", "/Users/a/docs ", " /Users/a/docs", "/Users/a/./docs", "/Users//a/docs"})
        EXPECT_EQ(add(other), Added::Yes) << other;

    EXPECT_EQ(folders.count(), 6);
    EXPECT_EQ(published()->size(), 6U);
}

TEST_F(Folders, WithoutASuiteAreAddedInMemoryAndPublished)
{
    platform.suiteCanBeRead = false;

    EXPECT_EQ(add("/a"), Added::Yes);

    expectInMemory({"/a"}, {1});
    EXPECT_EQ(*runBookmarks, (RunBookmarks{bytes("/a")}));
    EXPECT_EQ(published(), (Paths{"/a"}));
    EXPECT_TRUE(platform.suite.empty());
    EXPECT_EQ(platform.calls.lines(), (Lines{suiteOpened, R"(platform.bookmarkDataWithOptions("/a", 2048))",
                                             R"(finderSync.setDirectoryURLs(["/a"]))"}));
}

TEST_F(Folders, AddingPrintsNothing)
{
    EXPECT_EQ(printedByAdding("/a"), "");
}

// Bookmarks.

TEST_F(Folders, EachNewOneLeavesABookmarkInTheOrderOfAdding)
{
    add("/b");
    add("/a");

    EXPECT_EQ(*runBookmarks, (RunBookmarks{bytes("/b"), bytes("/a")}));
    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{bytes("/b"), bytes("/a")}));
}

TEST_F(Folders, TheFirstAddedInARunReplacesTheBookmarksOfEarlierRuns)
{
    platform.suite.insert_or_assign("allBookmark", NS::Value::Array{bytes("old"), bytes("older")});
    loadWith({"/a", "/b"}, {1, 1});

    add("/c");

    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{bytes("/c")}));
    EXPECT_TRUE(platform.calls.containing(R"(objectForKey("allBookmark"))").empty());
}

TEST_F(Folders, EveryListOfTheProcessSharesItsBookmarks)
{
    add("/a");
    folders = made();

    add("/b");

    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{bytes("/a"), bytes("/b")}));
}

TEST_F(Folders, ABookmarkThatIsKnownIsNotWrittenAgain)
{
    platform.bookmarks = {{"/a", bytes("same")}, {"/b", bytes("other")}, {"/c", bytes("same")}};
    add("/a");
    add("/b");
    platform.calls.clear();

    EXPECT_EQ(add("/c"), Added::Yes);

    expectStored({"/a", "/b", "/c"}, {1, 1, 1});
    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{bytes("same"), bytes("other")}));
    EXPECT_EQ(*runBookmarks, (RunBookmarks{bytes("same"), bytes("other")}));
    EXPECT_EQ(published(), (Paths{"/a", "/b", "/c"}));
    EXPECT_TRUE(platform.calls.containing("allBookmark").empty());
    EXPECT_EQ(platform.calls.containing("synchronize").size(), 2U);
}

TEST_F(Folders, BookmarksAreTheSameWhenTheirLengthsAndBytesAre)
{
    platform.bookmarks = {{"/a", NS::Data{1, 2}},
                          {"/b", NS::Data{1, 2, 0}},
                          {"/c", NS::Data{1}},
                          {"/d", NS::Data{}},
                          {"/e", NS::Data{1, 3}}};
    for (const char* path : {"/a", "/b", "/c", "/d", "/e"})
        add(path);

    EXPECT_EQ(*runBookmarks, (RunBookmarks{{1, 2}, {1, 2, 0}, {1}, {}, {1, 3}}));
}

TEST_F(Folders, ABookmarkThatCannotBeMadeIsToldInTwoLinesAndTheFolderStays)
{
    platform.suite.insert_or_assign("allBookmark", NS::Value::Array{bytes("old")});
    platform.bookmarks = {{"/a", NS::Error{"The file \u201ca\u201d is 100% gone."}}};

    EXPECT_EQ(printedByAdding("/a"), "The file \u201ca\u201d is 100% gone.\nError storing bookmarks\n");

    expectStored({"/a"}, {1});
    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{bytes("old")}));
    EXPECT_TRUE(runBookmarks->empty());
    EXPECT_EQ(platform.calls.lines().back(), R"(finderSync.setDirectoryURLs(["/a"]))");
    EXPECT_EQ(platform.calls.containing("synchronize").size(), 2U);
}

TEST_F(Folders, ABookmarkMadeWithoutASuiteIsWrittenWithTheNextOne)
{
    platform.suiteCanBeRead = false;
    add("/a");
    platform.suiteCanBeRead = true;

    add("/b");

    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{bytes("/a"), bytes("/b")}));
    expectStored({"/a", "/b"}, {1, 1});
}

// Removing.

TEST_F(Folders, RemovingTakesThePathAndTheFlagOfItsRow)
{
    loadWith({"/a", "/b", "/c"}, {1, 0, 7});

    folders.removeAt(1);

    expectInMemory({"/a", "/c"}, {1, 7});
    expectStored({"/a", "/c"}, {1, 7});
    EXPECT_EQ(published(), (Paths{"/a", "/c"}));
}

TEST_F(Folders, RemovingWritesThePathsThenTheFlagsThenPublishes)
{
    add("/a");
    add("/b");
    platform.calls.clear();

    folders.removeAt(0);

    EXPECT_EQ(platform.calls.lines(),
              (Lines{suiteOpened, R"(suite#3.setObject_forKey("foldersArray"))", "suite#3.synchronize",
                     R"(suite#3.setObject_forKey("foldersArraystate"))", "suite#3.synchronize",
                     R"(finderSync.setDirectoryURLs(["/b"]))"}));
}

TEST_F(Folders, RemovingLeavesTheBookmarks)
{
    add("/a");
    add("/b");

    folders.removeAt(0);

    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{bytes("/a"), bytes("/b")}));
    EXPECT_EQ(*runBookmarks, (RunBookmarks{bytes("/a"), bytes("/b")}));
}

TEST_F(Folders, RemovingTheLastStoresEmptyListsAndPublishesTheEmptySet)
{
    loadWith({"/a"}, {1});

    folders.removeAt(0);

    expectStored({}, {});
    EXPECT_EQ(published(), Paths{});
}

TEST_F(Folders, WithoutASuiteAreRemovedInMemoryAndPublished)
{
    loadWith({"/a", "/b"}, {1, 1});
    platform.suiteCanBeRead = false;

    folders.removeAt(0);

    expectInMemory({"/b"}, {1});
    expectStored({"/a", "/b"}, {1, 1});
    EXPECT_EQ(published(), (Paths{"/b"}));
}

TEST_F(Folders, OneThatWasRemovedCanBeAddedAgain)
{
    add("/a");
    folders.removeAt(0);

    EXPECT_EQ(add("/a"), Added::Yes);

    expectStored({"/a"}, {1});
    EXPECT_EQ(runBookmarks->size(), 1U);
}

// Flags.

TEST_F(Folders, TogglingTurnsOneToZeroAndEverythingElseToOne)
{
    loadWith({"/a", "/b", "/c", "/d"}, {1, 0, 7, -1});

    for (std::ptrdiff_t row = 0; row < 4; ++row)
        folders.toggleAt(row);

    EXPECT_EQ(folders.arrstate, (Flags{0, 1, 1, 1}));
}

TEST_F(Folders, TogglingReachesNothingOutside)
{
    loadWith({"/a"}, {1});

    folders.toggleAt(0);

    EXPECT_TRUE(platform.calls.lines().empty());
    expectStored({"/a"}, {1});
}

TEST_F(Folders, TogglingAsksOnlyForAFlag)
{
    loadWith({}, {1, 0});

    folders.toggleAt(1);

    EXPECT_EQ(folders.arrstate, (Flags{1, 1}));
}

TEST_F(Folders, StoringTheFlagsWritesThemAloneAndPublishesNothing)
{
    loadWith({"/a", "/b"}, {1, 1});
    folders.toggleAt(1);

    folders.storeFlags();

    EXPECT_EQ(platform.calls.lines(),
              (Lines{suiteOpened, R"(suite#2.setObject_forKey("foldersArraystate"))", "suite#2.synchronize"}));
    expectStored({"/a", "/b"}, {1, 0});
    EXPECT_FALSE(published());
}

TEST_F(Folders, WithoutASuiteTheFlagsAreNotStored)
{
    loadWith({"/a"}, {1});
    platform.suiteCanBeRead = false;
    folders.toggleAt(0);

    folders.storeFlags();

    expectStored({"/a"}, {1});
    EXPECT_EQ(folders.arrstate, (Flags{0}));
}

TEST_F(Folders, AreActiveOnlyWithTheFlagOne)
{
    loadWith({"/a", "/b", "/c", "/d"}, {1, 0, 7, -1});

    EXPECT_TRUE(folders.isActiveAt(0));
    for (std::ptrdiff_t row = 1; row < 4; ++row)
        EXPECT_FALSE(folders.isActiveAt(row));
}

TEST_F(Folders, AreCountedByTheirPaths)
{
    loadWith({"/a", "/b"}, {1});

    EXPECT_EQ(folders.count(), 2);
    EXPECT_EQ(folders.pathAt(0), "/a");
    EXPECT_EQ(folders.pathAt(1), "/b");
}

// Publishing.

TEST_F(Folders, OneAddressForEachDistinctPathIsPublishedActiveOrNot)
{
    loadWith({"/b", "/a", "/b"}, {0, 1, 7});

    folders.publish();

    EXPECT_EQ(platform.calls.lines(), (Lines{R"(finderSync.setDirectoryURLs(["/a", "/b"]))"}));
}

TEST_F(Folders, NoFoldersArePublishedAsTheEmptySet)
{
    folders.publish();
    EXPECT_EQ(published(), Paths{});
}

// What stops the program.

/// Settings whose every key another program removes once it was looked at.
class VanishingDefaults : public NS::UserDefaults {
public:
    std::optional<NS::Value> objectForKey(std::string_view key) override
    {
        return m_seen.emplace(key).second ? std::optional(NS::Value(NS::Value::Array{})) : std::nullopt;
    }
    void setObject_forKey(NS::Value, std::string_view) override {}
    void removeObjectForKey(std::string_view) override {}
    bool synchronize() override { return true; }

private:
    std::set<std::string> m_seen;
};

TEST_F(Folders, AListThatIsRemovedWhileItIsReadIsNone)
{
    folders.arrurl = {"/a"};
    folders.arrstate = {1};
    VanishingDefaults store;
    folders.load(&store);
    expectInMemory({"/a"}, {1});
}

using FoldersDeathTest = Folders;

struct WrongList {
    const char* name;
    const char* key;
    NS::Value value;
    const char* error;
};

class AWrongListDeathTest : public Folders, public testing::WithParamInterface<WrongList> {};

TEST_P(AWrongListDeathTest, IsFatalWhenItIsLoaded)
{
    store({"/a"}, {1});
    platform.suite.insert_or_assign(GetParam().key, GetParam().value);

    EXPECT_DEATH(load(), fatalLine("the stored " + std::string(GetParam().key) + GetParam().error));
}

constexpr const char* noArray = " is not an array";
constexpr const char* wrongElement = " has an element of the wrong kind";

INSTANTIATE_TEST_SUITE_P(
    Each, AWrongListDeathTest,
    testing::Values(WrongList{"PathsAsAText", "foldersArray", "/a", noArray},
                    WrongList{"PathsAsADictionary", "foldersArray", NS::Value::Dictionary{{"0", "/a"}}, noArray},
                    WrongList{"ANumberAmongThePaths", "foldersArray", NS::Value::Array{"/a", 1}, wrongElement},
                    WrongList{"DataAmongThePaths", "foldersArray", NS::Value::Array{NS::Data{47}, "/a"},
                              wrongElement},
                    WrongList{"FlagsAsANumber", "foldersArraystate", 1, noArray},
                    WrongList{"ATextAmongTheFlags", "foldersArraystate", NS::Value::Array{1, "1"}, wrongElement},
                    WrongList{"ATruthAmongTheFlags", "foldersArraystate", NS::Value::Array{true}, wrongElement}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(FoldersDeathTest, RemovingARowOutsideTheListsIsFatalBeforeAnythingIsWritten)
{
    loadWith({"/a", "/b"}, {1, 1});
    for (const std::ptrdiff_t row : {-1, 2, 1000})
        EXPECT_DEATH(withoutACall([&] { folders.removeAt(row); }),
                     fatalLine("foldersArray has no row " + std::to_string(row)));
}

TEST_F(FoldersDeathTest, RemovingARowThatOneListDoesNotHaveIsFatalBeforeAnythingIsWritten)
{
    loadWith({"/a", "/b"}, {1});
    EXPECT_DEATH(withoutACall([&] { folders.removeAt(1); }), fatalLine("foldersArraystate has no row 1"));
    loadWith({"/a"}, {1, 1});
    EXPECT_DEATH(withoutACall([&] { folders.removeAt(1); }), fatalLine("foldersArray has no row 1"));
}

TEST_F(FoldersDeathTest, TogglingARowOutsideTheFlagsIsFatal)
{
    loadWith({"/a", "/b", "/c"}, {1, 1});
    for (const std::ptrdiff_t row : {-1, 2, 1000})
        EXPECT_DEATH(withoutACall([&] { folders.toggleAt(row); }),
                     fatalLine("foldersArraystate has no row " + std::to_string(row)));
}

TEST_F(FoldersDeathTest, LookingOutsideTheListsIsFatal)
{
    loadWith({"/a", "/b"}, {1});

    EXPECT_DEATH(std::ignore = folders.pathAt(-1), fatalLine("foldersArray has no row -1"));
    EXPECT_DEATH(std::ignore = folders.pathAt(2), fatalLine("foldersArray has no row 2"));
    EXPECT_DEATH(std::ignore = folders.isActiveAt(-1), fatalLine("foldersArraystate has no row -1"));
    EXPECT_DEATH(std::ignore = folders.isActiveAt(1), fatalLine("foldersArraystate has no row 1"));
}

} // namespace
