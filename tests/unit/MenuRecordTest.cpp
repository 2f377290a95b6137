#include "menu/MenuRecord.h"

#include "settings/MenuCatalogue.h"
#include "support/FakeUserDefaults.h"
#include "support/FatalLine.h"
#include "support/PrintValue.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using Items = std::vector<NS::Value::Dictionary>;
using Flags = std::vector<std::int64_t>;

constexpr std::size_t actionCount = 16;

std::vector<std::string> catalogueTitles()
{
    std::vector<std::string> titles;
    titles.reserve(menuCatalogue.size());
    for (const CatalogueRow& action : menuCatalogue)
        titles.emplace_back(action.title);
    return titles;
}

/// The whole catalogue with every action on but those at `off`.
Items catalogueItems(const std::set<std::size_t>& off = {})
{
    Items items;
    for (const std::string& title : catalogueTitles())
        items.push_back({{"title", title}, {"state", !off.contains(items.size())}});
    return items;
}

NS::Value::Array stored(const Items& items)
{
    return {items.begin(), items.end()};
}

NS::Value::Array stored(const Flags& flags)
{
    return {flags.begin(), flags.end()};
}

const Flags ones(actionCount, 1);

class MenuRecordTest : public testing::Test {
protected:
    MenuRecord load(std::string_view version = "2.0")
    {
        return loadMenuRecord(catalogueTitles(), "save14", &suite, version);
    }
    [[nodiscard]] Lines writes() const
    {
        return calls.startingWithAnyOf({"suite.set", "suite.remove", "suite.synchronize"});
    }

    CallLog calls;
    NS::Value::Dictionary domain;
    FakeUserDefaults suite{calls, "suite", domain};
};

const Lines menuWrite{R"(suite.setObject_forKey("menuArrayDic"))", "suite.synchronize"};
const Lines legacyWrite{R"(suite.setObject_forKey("save14"))", "suite.synchronize"};
const Lines legacyThenMenuWrite{R"(suite.setObject_forKey("save14"))", "suite.synchronize",
                                R"(suite.setObject_forKey("menuArrayDic"))", "suite.synchronize"};

// A record that is made.

TEST_F(MenuRecordTest, TheFirstLaunchStoresEveryActionOnAndNoOlderRecord)
{
    const MenuRecord record = load();

    EXPECT_EQ(record.items, catalogueItems());
    EXPECT_TRUE(record.flags.empty());
    EXPECT_EQ(domain, (NS::Value::Dictionary{{"menuArrayDic", stored(catalogueItems())}}));
    EXPECT_EQ(writes(), menuWrite);
}

TEST_F(MenuRecordTest, WithoutASuiteEveryActionIsOn)
{
    const MenuRecord record = loadMenuRecord(catalogueTitles(), "save14", nullptr, "2.0");

    EXPECT_EQ(record.items, catalogueItems());
    EXPECT_TRUE(record.flags.empty());
}

struct WrongRecord {
    const char* name;
    NS::Value value;
};

class ARecordOfTheWrongType : public MenuRecordTest, public testing::WithParamInterface<WrongRecord> {};

TEST_P(ARecordOfTheWrongType, IsReplacedByEveryActionOn)
{
    domain.insert_or_assign("menuArrayDic", GetParam().value);

    EXPECT_EQ(load().items, catalogueItems());

    EXPECT_EQ(domain, (NS::Value::Dictionary{{"menuArrayDic", stored(catalogueItems())}}));
    EXPECT_EQ(writes(), menuWrite);
}

TEST_P(ARecordOfTheWrongType, IsNotMadeFromTheOlderRecord)
{
    domain.insert_or_assign("menuArrayDic", GetParam().value);
    domain.insert_or_assign("save14", NS::Value::Array{0, 0, 0});

    EXPECT_EQ(load().items, catalogueItems());

    EXPECT_EQ(domain.at("save14"), (NS::Value::Array{0, 0, 0}));
    EXPECT_EQ(writes(), menuWrite);
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, ARecordOfTheWrongType,
    testing::Values(WrongRecord{"AString", "Open Terminal"}, WrongRecord{"ABoolean", true},
                    WrongRecord{"ANumber", 16},
                    WrongRecord{"ADictionary", NS::Value::Dictionary{{"title", "Open Terminal"}, {"state", true}}},
                    WrongRecord{"AnArrayOfStrings", NS::Value::Array{"Open Terminal"}},
                    WrongRecord{"OneElementNotADictionary",
                                NS::Value::Array{NS::Value::Dictionary{{"title", "Open Terminal"}}, 1}}),
    [](const auto& tested) { return tested.param.name; });

// A record that exists.

struct ExistingRecord {
    const char* name;
    Items items;
};

class ARecordThatExists : public MenuRecordTest, public testing::WithParamInterface<ExistingRecord> {};

TEST_P(ARecordThatExists, IsTakenAsItStandsAndNotWritten)
{
    const NS::Value::Dictionary before{{"menuArrayDic", stored(GetParam().items)},
                                       {"save14", NS::Value::Array{0, 1}}};
    domain = before;

    const MenuRecord record = load();

    EXPECT_EQ(record.items, GetParam().items);
    EXPECT_TRUE(record.flags.empty());
    EXPECT_EQ(domain, before);
    EXPECT_EQ(writes(), Lines{});
}

INSTANTIATE_TEST_SUITE_P(EachKind, ARecordThatExists,
                         testing::Values(ExistingRecord{"Empty", {}},
                                         ExistingRecord{"ThreeRowsInAnotherOrder",
                                                        {{{"title", "Send via Mail"}, {"state", false}},
                                                         {{"title", "Open Terminal"}, {"state", true}},
                                                         {{"title", "An action of long ago"}, {"state", true}}}},
                                         ExistingRecord{"TheSameTitleTwice",
                                                        {{{"title", "Open Terminal"}, {"state", true}},
                                                         {{"title", "Open Terminal"}, {"state", false}}}},
                                         ExistingRecord{"RowsOfOtherKinds",
                                                        {{}, {{"title", 7}}, {{"state", "on"}, {"colour", "red"}}}}),
                         [](const auto& tested) { return tested.param.name; });

// The older record, migrated.

struct Migration {
    const char* name;
    NS::Value::Array older;
    Flags flags;
    std::set<std::size_t> off;
};

class AnOlderRecord : public MenuRecordTest, public testing::WithParamInterface<Migration> {};

TEST_P(AnOlderRecord, BecomesTheNewOneAndStays)
{
    domain = {{"save14", GetParam().older}};

    const MenuRecord record = load();

    EXPECT_EQ(record.flags, GetParam().flags);
    EXPECT_EQ(record.items, catalogueItems(GetParam().off));
    EXPECT_EQ(domain, (NS::Value::Dictionary{{"save14", stored(GetParam().flags)},
                                             {"menuArrayDic", stored(catalogueItems(GetParam().off))}}));
    EXPECT_EQ(writes(), legacyThenMenuWrite);
}

Flags withOnes(Flags flags)
{
    flags.resize(actionCount, 1);
    return flags;
}

INSTANTIATE_TEST_SUITE_P(OfEachLength, AnOlderRecord,
                         testing::Values(Migration{"NoFlags", {}, ones, {}}, //
                                         Migration{"ThreeFlags", {1, 0, 1}, withOnes({1, 0, 1}), {1}},
                                         Migration{"AFlagOfTwo", {1, 2}, withOnes({1, 2}), {1}},
                                         Migration{"ANegativeFlag", {-1, 1}, withOnes({-1, 1}), {0}},
                                         Migration{"RealFlags", {1.0, 0.0, 2.5}, withOnes({1, 0, 2}), {1, 2}},
                                         Migration{"FifteenFlags",
                                                   stored(Flags(15, 0)),
                                                   withOnes(Flags(15, 0)),
                                                   {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}},
                                         Migration{"ExactlySixteenFlagsAreReset", stored(Flags(16, 0)), ones, {}},
                                         Migration{"SeventeenFlagsAreReset", stored(Flags(17, 0)), ones, {}}),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(MenuRecordTest, AMigratedRecordIsNotMigratedAgain)
{
    domain = {{"save14", NS::Value::Array{1, 0, 1}}};
    load();
    calls.clear();

    EXPECT_EQ(load().items, catalogueItems({1}));

    EXPECT_EQ(writes(), Lines{});
}

TEST_F(MenuRecordTest, TheOlderRecordIsReadUnderTheKeyThatIsGiven)
{
    domain = {{"save13", NS::Value::Array{0}}, {"save14", NS::Value::Array{1, 0}}};

    EXPECT_EQ(loadMenuRecord(catalogueTitles(), "save13", &suite, "2.0").items, catalogueItems({0}));

    EXPECT_EQ(domain.at("save14"), (NS::Value::Array{1, 0}));
}

TEST_F(MenuRecordTest, ANumberThatNoFlagCanHoldIsOff)
{
    for (const NS::Value& number :
         {NS::Value(std::numeric_limits<std::uint64_t>::max()), NS::Value(0x1p63),
          NS::Value(std::numeric_limits<double>::quiet_NaN()), NS::Value(-std::numeric_limits<double>::infinity())}) {
        SCOPED_TRACE(testing::PrintToString(number));
        domain = {{"save14", NS::Value::Array{1, number}}};

        EXPECT_EQ(load().items, catalogueItems({1}));
    }
}

// An older record that cannot be read.

const std::vector<NS::Value> notNumbers{
    "1", true, NS::Date{1.0}, NS::Data{1}, NS::Value::Array{1}, NS::Value::Dictionary{{"1", 1}}};

class MenuRecordDeathTest : public MenuRecordTest, public testing::WithParamInterface<const char*> {};

TEST_P(MenuRecordDeathTest, AFlagThatIsNotANumberIsFatalBeforeAnythingIsWritten)
{
    for (const NS::Value& notANumber : notNumbers) {
        SCOPED_TRACE(testing::PrintToString(notANumber));
        domain = {{"save14", NS::Value::Array{1, notANumber}}};
        EXPECT_DEATH(
            {
                calls.echoOnStandardError();
                load(GetParam());
            },
            fatalLineAfter(R"(suite.objectForKey("save14"))", "the stored save14 has an element of the wrong kind"));
    }
}

INSTANTIATE_TEST_SUITE_P(InEveryVersion, MenuRecordDeathTest, testing::Values("2.0", "1.8"),
                         [](const auto& tested) { return tested.param[0] == '2' ? "Current" : "OneDotEight"; });

using MenuRecordMigrationDeathTest = MenuRecordTest;

TEST_F(MenuRecordMigrationDeathTest, AnOlderRecordThatIsNotAnArrayIsFatal)
{
    domain = {{"save14", "1, 0, 1"}};
    EXPECT_DEATH(load(), fatalLine("the stored save14 is not an array"));
}

// Version 1.8, which keeps the older record alone.

struct LegacyCase {
    const char* name;
    NS::Value::Dictionary before;
    Flags flags;
    bool written;
};

class VersionOneDotEight : public MenuRecordTest, public testing::WithParamInterface<LegacyCase> {};

TEST_P(VersionOneDotEight, KeepsTheOlderRecordAlone)
{
    domain = GetParam().before;
    auto after = GetParam().before;
    if (GetParam().written)
        after.insert_or_assign("save14", stored(GetParam().flags));

    const MenuRecord record = load("1.8");

    EXPECT_TRUE(record.items.empty());
    EXPECT_EQ(record.flags, GetParam().flags);
    EXPECT_EQ(domain, after);
    EXPECT_EQ(writes(), GetParam().written ? legacyWrite : Lines{});
    EXPECT_TRUE(calls.containing("menuArrayDic").empty());
}

INSTANTIATE_TEST_SUITE_P(
    EachRecord, VersionOneDotEight,
    testing::Values(LegacyCase{"Absent", {}, ones, true},
                    LegacyCase{"Empty", {{"save14", NS::Value::Array{}}}, ones, true},
                    LegacyCase{"NotAnArray", {{"save14", "1, 0, 1"}}, ones, true},
                    LegacyCase{"TooShort", {{"save14", NS::Value::Array{1, 0, 1}}}, ones, true},
                    LegacyCase{"TooLong", {{"save14", stored(Flags(17, 0))}}, ones, true},
                    LegacyCase{"OfTheRightLengthStays", {{"save14", stored(Flags(16, 0))}}, Flags(16, 0), false},
                    LegacyCase{"BesideANewRecord",
                               {{"menuArrayDic", stored(catalogueItems({2}))}, {"save14", stored(Flags(16, 2))}},
                               Flags(16, 2),
                               false}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(MenuRecordTest, VersionOneDotEightWithoutASuiteHasEveryFlagOn)
{
    const MenuRecord record = loadMenuRecord(catalogueTitles(), "save14", nullptr, "1.8");

    EXPECT_TRUE(record.items.empty());
    EXPECT_EQ(record.flags, ones);
}

class AVersionLikeOneDotEight : public MenuRecordTest, public testing::WithParamInterface<const char*> {};

TEST_P(AVersionLikeOneDotEight, IsAVersionLikeAnyOther)
{
    EXPECT_EQ(load(GetParam()).items, catalogueItems());
    EXPECT_FALSE(domain.contains("save14"));
}

INSTANTIATE_TEST_SUITE_P(Each, AVersionLikeOneDotEight,
                         testing::Values("", "1.80", "1.8.0", " 1.8", "1.8 ", "1,8", "1.7"));

// What a row says.

TEST(MenuItem, ItsTitleIsItsStringOrEmpty)
{
    EXPECT_EQ(menuItemTitle({{"title", "Resize Photos"}}), "Resize Photos");
    EXPECT_EQ(menuItemTitle({{"title", 7}}), "");
    EXPECT_EQ(menuItemTitle({{"Title", "Resize Photos"}}), "");
}

struct State {
    const char* name;
    NS::Value::Dictionary item;
    bool state;
    bool toggled;
};

class AMenuItem : public testing::TestWithParam<State> {};

TEST_P(AMenuItem, ShowsItsStateAndTogglesIt)
{
    NS::Value::Dictionary item = GetParam().item;
    auto expected = item;
    expected.insert_or_assign("state", GetParam().toggled);

    EXPECT_EQ(menuItemState(item), GetParam().state);
    toggleMenuItem(item);

    EXPECT_EQ(item, expected);
}

INSTANTIATE_TEST_SUITE_P(
    EachState, AMenuItem,
    testing::Values(State{"On", {{"title", "a"}, {"state", true}}, true, false},
                    State{"Off", {{"title", "a"}, {"state", false}}, false, true},
                    State{"Missing", {{"title", "a"}}, false, true},
                    State{"AnInteger", {{"title", "a"}, {"state", 1}}, false, true},
                    State{"AString", {{"title", "a"}, {"state", "true"}}, false, true},
                    State{"OfARowWithMore", {{"title", "a"}, {"state", true}, {"colour", "red"}}, true, false}),
    [](const auto& tested) { return tested.param.name; });

} // namespace
