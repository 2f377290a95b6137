#include "Items.h"
#include "extension/actions/duplicates/Groups.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace MenuExtension::Duplicates;
using Kind = KeepRule::Kind;

namespace {

std::vector<std::string> pathsIn(const Groups& groups, GroupNumber group)
{
    std::vector<std::string> paths;
    for (const ItemNumber number : groups.itemsOf(group))
        paths.push_back(groups.item(number).path);
    return paths;
}

std::vector<std::string> chosenIn(const Groups& groups, GroupNumber group)
{
    std::vector<std::string> paths;
    for (const ItemNumber number : groups.itemsOf(group)) {
        if (groups.isChosen(number))
            paths.push_back(groups.item(number).path);
    }
    return paths;
}

using Paths = std::vector<std::string>;

} // namespace

TEST(Groups, GiveBackWhatWasAddedByteForByte)
{
    Groups groups;
    Item odd{.path = "/a b\n/\xff\xfe/-rf \t",
             .state = {.device = 9, .inode = 1ULL << 60U, .size = 1LL << 50, .modified = -5},
             .detail = ~0ULL};
    const Item root = itemAt("/atroot");
    const GroupNumber group = groups.add(0, {odd, root});
    const auto items = groups.itemsOf(group);
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(groups.item(items[0]).path, odd.path);
    EXPECT_EQ(groups.item(items[0]).state, odd.state);
    EXPECT_EQ(groups.item(items[0]).detail, odd.detail);
    EXPECT_EQ(groups.item(items[1]).path, "/atroot");
    EXPECT_EQ(groups.item(items[1]).state, root.state);
    EXPECT_EQ(groups.groupOf(items[1]), group);
}

TEST(Groups, TheLargestSavingComesFirst)
{
    Groups groups;
    const auto small = groups.add(0, {itemAt("/a", 10), itemAt("/b", 10)});
    const auto many = groups.add(0, {itemAt("/c", 6), itemAt("/d", 6), itemAt("/e", 6)});
    // Of unequal ones the largest is counted as the one that stays.
    const auto unequal = groups.add(0, {itemAt("/f", 100), itemAt("/g", 11)});
    EXPECT_EQ(groups.bySaving(), (std::vector{many, unequal, small}));
    EXPECT_EQ(groups.savingOf(unequal), 11);
    EXPECT_EQ(groups.savingOf(many), 12);
}

TEST(Groups, TheSavingIsWhatKeepingTheBestLeavesOver)
{
    const auto isBetter = [](const Item& one, const Item& other) { return one.detail > other.detail; };
    Groups groups(isBetter);
    const auto itemOf = [](const char* path, std::int64_t size, std::uint64_t detail) {
        Item item = itemAt(path, size);
        item.detail = detail;
        return item;
    };
    const auto pair = groups.add(0, {itemOf("/c", 40, 1), itemOf("/d", 50, 1)});
    const auto group = groups.add(1, {itemOf("/large", 700, 1), itemOf("/a", 8, 2)});
    EXPECT_EQ(groups.savingOf(group), 700);
    groups.add(1, {itemOf("/best", 28, 3), itemOf("/as-good", 29, 3)});
    EXPECT_EQ(pathsIn(groups, group)[2], groups.item(groups.bestOf(group)).path) << "the shorter path of equals";
    EXPECT_EQ(groups.bySaving(), (std::vector{group, pair}));
    groups.choose({group, pair}, {.kind = Kind::Best, .folder = {}, .isBetter = isBetter});
    EXPECT_EQ(groups.chosen().bytes, groups.savingOf(group) + groups.savingOf(pair));
    groups.forget({groups.itemsOf(group)[2]});
    EXPECT_EQ(groups.savingOf(group), 708);
}

TEST(Groups, AGroupGrowsUnderItsKey)
{
    Groups groups;
    const auto group = groups.add(3, {itemAt("/a", 5), itemAt("/b", 5)});
    const auto other = groups.add(4, {itemAt("/x", 6), itemAt("/y", 6)});
    EXPECT_EQ(groups.add(3, {itemAt("/c", 5)}), group);
    EXPECT_EQ(pathsIn(groups, group), (Paths{"/a", "/b", "/c"}));
    EXPECT_EQ(groups.bySaving(), (std::vector{group, other}));
    EXPECT_NE(groups.add(0, {itemAt("/p"), itemAt("/q")}), groups.add(0, {itemAt("/r"), itemAt("/s")}));
}

TEST(Groups, TheLastOfAGroupCannotBeChosen)
{
    Groups groups;
    const auto group = groups.add(0, {itemAt("/a", 5), itemAt("/b", 5)});
    const auto items = groups.itemsOf(group);
    EXPECT_TRUE(groups.setChosen(items[0], true));
    EXPECT_FALSE(groups.setChosen(items[1], true));
    EXPECT_EQ(groups.chosen(), (Groups::Sum{1, 5}));
    EXPECT_TRUE(groups.setChosen(items[0], false));
    EXPECT_TRUE(groups.setChosen(items[1], true));
    EXPECT_EQ(chosenIn(groups, group), (Paths{"/b"}));
}

TEST(Groups, NoOrderOfChoicesAndRulesChoosesAllOfAGroup)
{
    std::mt19937 random(11);
    Groups groups;
    std::vector<GroupNumber> all;
    for (int count = 2; count < 7; ++count) {
        std::vector<Item> items;
        for (int index = 0; index < count; ++index)
            items.push_back(itemAt("/" + std::to_string(index % 3) + "/" + std::to_string(index), count, index));
        all.push_back(groups.add(0, items));
    }
    const std::vector<Kind> kinds{Kind::Oldest, Kind::Newest, Kind::ShortestPath, Kind::InFolder, Kind::Best};
    for (int step = 0; step < 20'000; ++step) {
        const GroupNumber group = all[random() % all.size()];
        const auto items = groups.itemsOf(group);
        if (random() % 4 == 0) {
            groups.choose(all,
                          {.kind = kinds[random() % kinds.size()],
                           .folder = "/" + std::to_string(random() % 4),
                           .isBetter = [](const Item& one, const Item& other) { return one.path > other.path; }});
        } else {
            groups.setChosen(items[random() % items.size()], random() % 4 != 0);
        }
        Groups::Sum sum;
        for (const GroupNumber each : all) {
            std::size_t chosen = 0;
            for (const ItemNumber item : groups.itemsOf(each)) {
                if (groups.isChosen(item)) {
                    ++chosen;
                    sum.bytes += groups.item(item).state.size;
                }
            }
            sum.items += chosen;
            ASSERT_LT(chosen, groups.countOf(each));
        }
        ASSERT_EQ(sum, groups.chosen());
    }
}

TEST(Groups, ARuleTakesTheChoiceFromTheOneThatItKeeps)
{
    Groups groups;
    const auto group = groups.add(0, {itemAt("/old", 5, 1), itemAt("/new", 5, 2)});
    groups.setChosen(groups.itemsOf(group)[0], true);
    groups.choose({group}, {.kind = Kind::Oldest});
    EXPECT_EQ(chosenIn(groups, group), (Paths{"/new"}));
}

TEST(Groups, ARuleThatSaysNothingLeavesTheChoice)
{
    Groups groups;
    const auto group = groups.add(0, {itemAt("/a"), itemAt("/b")});
    groups.setChosen(groups.itemsOf(group)[0], true);
    groups.choose({group}, {.kind = Kind::InFolder, .folder = "/elsewhere"});
    EXPECT_EQ(chosenIn(groups, group), (Paths{"/a"}));
    groups.chooseNothing();
    EXPECT_EQ(chosenIn(groups, group), Paths());
    EXPECT_EQ(groups.chosen(), Groups::Sum());
}

TEST(Groups, WhatIsAddedToAGroupIsNotChosen)
{
    Groups groups;
    const auto group = groups.add(1, {itemAt("/a", 1, 1), itemAt("/b", 1, 2)});
    groups.choose({group}, {.kind = Kind::Oldest});
    groups.add(1, {itemAt("/c", 1, 0)});
    EXPECT_EQ(chosenIn(groups, group), (Paths{"/b"}));
}

TEST(Groups, AFilterFindsPathsWithoutRegardToCase)
{
    Groups groups;
    const auto group = groups.add(0, {itemAt("/Pictures/a"), itemAt("/x/b")});
    const auto other = groups.add(0, {itemAt("/y/a"), itemAt("/y/\xc3\x84")});
    EXPECT_EQ(groups.bySaving("pictures/A"), std::vector{group});
    EXPECT_EQ(groups.bySaving("\xc3\x84"), std::vector{other});
    EXPECT_EQ(groups.bySaving("nowhere"), std::vector<GroupNumber>());
    EXPECT_EQ(groups.bySaving("").size(), 2);
}

TEST(Groups, ForgetWhatHasGone)
{
    Groups groups;
    const auto group = groups.add(0, {itemAt("/a", 9), itemAt("/b", 5), itemAt("/c", 5)});
    const auto pair = groups.add(0, {itemAt("/d"), itemAt("/e")});
    const auto items = groups.itemsOf(group);
    groups.setChosen(items[0], true);
    groups.forget({items[0]});
    EXPECT_EQ(pathsIn(groups, group), (Paths{"/b", "/c"}));
    EXPECT_EQ(groups.chosen(), Groups::Sum());
    EXPECT_EQ(groups.savingOf(group), 5);
    EXPECT_TRUE(groups.setChosen(items[1], true));
    EXPECT_FALSE(groups.setChosen(items[2], true));
    groups.forget({groups.itemsOf(pair)[1]});
    EXPECT_EQ(groups.bySaving(), std::vector{group});
    groups.forget({items[2]});
    groups.add(0, {itemAt("/f"), itemAt("/g")});
    EXPECT_EQ(groups.bySaving().size(), 1);
    EXPECT_EQ(groups.chosen(), Groups::Sum()) << "the last of a group stays";
}

TEST(Groups, WhatWasChosenIsChosenAgainWhereItIsTheSame)
{
    Groups groups;
    const Item same = itemAt("/same");
    const Item lone = itemAt("/lone");
    const Item changed = itemAt("/changed");
    const auto choose = [&](GroupNumber group) {
        EXPECT_TRUE(groups.setChosen(groups.itemsOf(group).front(), true));
    };
    choose(groups.add(0, {same, itemAt("/a")}));
    choose(groups.add(0, {lone, itemAt("/b")}));
    choose(groups.add(0, {changed, itemAt("/c")}));
    groups.clear();
    EXPECT_EQ(groups.chosen(), Groups::Sum());
    EXPECT_EQ(chosenIn(groups, groups.add(0, {itemAt("/d"), same})), Paths{"/same"});
    EXPECT_EQ(chosenIn(groups, groups.add(0, {itemAt("/changed"), itemAt("/c")})), Paths{});
    // One always stays.
    EXPECT_EQ(chosenIn(groups, groups.add(1, {lone})), Paths{});
    EXPECT_EQ(chosenIn(groups, groups.add(1, {itemAt("/b")})), Paths{"/lone"});
    EXPECT_EQ(groups.chosen().items, 2U);
    groups.chooseNothing();
    groups.clear();
    EXPECT_EQ(chosenIn(groups, groups.add(0, {itemAt("/d"), same})), Paths{});
}
