#include "Items.h"
#include "extension/actions/duplicates/KeepRule.h"

#include <gtest/gtest.h>

using namespace MenuExtension::Duplicates;
using Kind = KeepRule::Kind;
using Kept = std::vector<bool>;

TEST(KeepRule, KeepsTheOldestOrTheNewest)
{
    const std::vector<Item> items{itemAt("/a", 1, 20), itemAt("/b", 1, 10), itemAt("/c", 1, 30)};
    EXPECT_EQ(KeepRule{.kind = Kind::Oldest}.kept(items), (Kept{false, true, false}));
    EXPECT_EQ(KeepRule{.kind = Kind::Newest}.kept(items), (Kept{false, false, true}));
}

TEST(KeepRule, ComparesDatesThatAreFarApart)
{
    const auto modifiedAt = [](std::int64_t year) {
        struct stat status = {};
        status.st_mtim.tv_sec = (year - 1970) * 31'556'952;
        return FileState::of(status).modified;
    };
    const std::vector<Item> items{itemAt("/a", 1, modifiedAt(2200)), itemAt("/b", 1, modifiedAt(1901)),
                                  itemAt("/c", 1, modifiedAt(2400))};
    EXPECT_EQ(KeepRule{.kind = Kind::Oldest}.kept(items), (Kept{false, true, false}));
    EXPECT_EQ(KeepRule{.kind = Kind::Newest}.kept(items), (Kept{false, false, true}));
}

TEST(KeepRule, KeepsOneOfThoseThatAreEqual)
{
    const std::vector<Item> items{itemAt("/long/b"), itemAt("/b"), itemAt("/a")};
    for (const Kind kind : {Kind::Oldest, Kind::Newest, Kind::ShortestPath, Kind::Best})
        EXPECT_EQ(KeepRule{.kind = kind}.kept(items), (Kept{false, false, true}));
}

TEST(KeepRule, KeepsTheBestByTheFindersOwnRule)
{
    std::vector<Item> items{itemAt("/a"), itemAt("/b"), itemAt("/c")};
    items[2].detail = 12;
    const auto hasMore = [](const Item& one, const Item& other) { return one.detail > other.detail; };
    EXPECT_EQ((KeepRule{.kind = Kind::Best, .folder = {}, .isBetter = hasMore}.kept(items)),
              (Kept{false, false, true}));
}

TEST(KeepRule, KeepsAllThatLieInAFolder)
{
    const std::vector<Item> items{itemAt("/in/a"), itemAt("/in/deep/a"), itemAt("/inside/a"), itemAt("/out/in/a")};
    EXPECT_EQ((KeepRule{.kind = Kind::InFolder, .folder = "/in"}.kept(items)), (Kept{true, true, false, false}));
    EXPECT_EQ((KeepRule{.kind = Kind::InFolder, .folder = "/in/"}.kept(items)), (Kept{true, true, false, false}));
    EXPECT_EQ((KeepRule{.kind = Kind::InFolder, .folder = "/"}.kept(items)), (Kept{true, true, true, true}));
}

TEST(KeepRule, SaysNothingOfAGroupThatHasNoneInTheFolder)
{
    EXPECT_TRUE((KeepRule{.kind = Kind::InFolder, .folder = "/in"}.kept({itemAt("/a"), itemAt("/b")})).empty());
    EXPECT_TRUE(KeepRule{}.kept({}).empty());
}
