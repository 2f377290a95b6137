#include "extension/menu/Targets.h"

#include <gtest/gtest.h>

#include <climits>

using namespace MenuExtension;

namespace {

using Texts = std::vector<std::string>;

Texts all(std::string Target::*text, const Texts& folders)
{
    Texts texts;
    for (const Target& target : targetsOf(folders))
        texts.push_back(target.*text);
    return texts;
}

Texts titles(const Texts& folders)
{
    return all(&Target::title, folders);
}

Texts paths(const Texts& folders)
{
    return all(&Target::path, folders);
}

TEST(Targets, AreNamedByTheLastComponentInTheOrderOfTheList)
{
    const Texts folders{"/home/pat/Music", "/srv/b/", "/", "/home/pat/Archive 2"};
    EXPECT_EQ(titles(folders), (Texts{"Music", "b", "/", "Archive 2"}));
    EXPECT_EQ(paths(folders), (Texts{"/home/pat/Music", "/srv/b", "/", "/home/pat/Archive 2"}));
    EXPECT_EQ(all(&Target::description, folders), paths(folders));
    EXPECT_EQ(titles({}), Texts{});
}

TEST(Targets, AreThereOnce)
{
    EXPECT_EQ(paths({"/a", "/b", "/a/", "/a"}), (Texts{"/a", "/b"}));
}

TEST(Targets, AreNotWhatIsNoPlainPath)
{
    EXPECT_EQ(paths({"", "a", "~/a", "file:///a", "/a/../b", "/a/./b", "/..", std::string("/a\0b", 4),
                     '/' + std::string(PATH_MAX, 'a'), "/good"}),
              Texts{"/good"});
}

TEST(Targets, OfTheSameNameAreToldApartByTheFoldersAbove)
{
    EXPECT_EQ(titles({"/projects/plans", "/home/plans", "/plans", "/other"}),
              (Texts{"plans (projects)", "plans (home)", "plans (/)", "other"}));
    EXPECT_EQ(titles({"/a/x/plans", "/b/x/plans"}), (Texts{"plans (a/x)", "plans (b/x)"}));
    EXPECT_EQ(titles({"/a/x/plans", "/b/x/plans", "/c/plans"}), (Texts{"plans (a/x)", "plans (b/x)", "plans (c)"}));
    EXPECT_EQ(titles({"/x/plans", "/a/x/plans"}), (Texts{"plans (/x)", "plans (a/x)"}));
    EXPECT_EQ(titles({"/ax/plans", "/bx/plans"}), (Texts{"plans (ax)", "plans (bx)"}));
    EXPECT_EQ(titles({"/plans/plans", "/plans"}), (Texts{"plans (plans)", "plans (/)"}));
}

TEST(Targets, AreTextOnOneLine)
{
    const Texts folders{"/pat/new\nline", "/pat/\tx\u202e", "/pat/caf\u00e9 \xff"};
    EXPECT_EQ(titles(folders), (Texts{"new\u21b5line", "\u21e5x\ufffd", "caf\u00e9 \ufffd"}));
    EXPECT_EQ(all(&Target::description, folders).front(), "/pat/new\u21b5line");
    EXPECT_EQ(paths(folders), folders);
    // What looks the same is told apart too.
    EXPECT_EQ(titles({"/a/x\x01", "/b/x\x02"}), (Texts{"x\ufffd (a)", "x\ufffd (b)"}));
}

TEST(Targets, HaveNoTitleThatAMenuHasNoRoomFor)
{
    std::string name;
    for (int character = 0; character < 85; ++character)
        name += "\u65e5";
    const Target target = targetsOf(Texts{"/a/" + name + 'b'}).front();
    EXPECT_EQ(target.title, name.substr(0, 24 * 3) + "\u2026" + name.substr(0, 22 * 3) + 'b');
    EXPECT_EQ(target.description, target.path);
    const std::string fits(48, 'n');
    EXPECT_EQ(titles({'/' + fits}), Texts{fits});

    std::string deep;
    while (deep.size() < 4000)
        deep += "/deep";
    for (const std::string& title : titles({"/a" + deep, "/b" + deep}))
        EXPECT_LT(title.size(), 70U);
}

TEST(Targets, AreTheFirstOfManyFolders)
{
    Texts folders;
    for (std::size_t number = 0; number < mostTargets + 5; ++number)
        folders.push_back("/list/" + std::to_string(number));
    EXPECT_EQ(paths(folders), Texts(folders.begin(), folders.end() - 5));
}

} // namespace
