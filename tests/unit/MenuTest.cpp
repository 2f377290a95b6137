#include "extension/menu/Menu.h"

#include "settings/AppliesTo.h"
#include "settings/MenuCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace MenuExtension;

namespace {

using Names = std::vector<std::string>;

constexpr SelectedItem file{.path = "/in/a.txt"};
constexpr SelectedItem folder{.path = "/in/folder", .isFolder = true};
constexpr SelectedItem picture{.path = "/in/a.png", .isPicture = true};
constexpr SelectedItem outside{.path = "/out/a.txt"};

Selection selected(std::vector<SelectedItem> items)
{
    return {.items = std::move(items), .isBackground = false};
}

Selection background(std::string_view path)
{
    return {.items = {{.path = path, .isFolder = true}}, .isBackground = true};
}

class OfferedMenu : public testing::Test {
protected:
    OfferedMenu()
    {
        for (const CatalogueRow& row : menuCatalogue)
            settings.actions.push_back(
                {std::string(row.identifier), std::string(row.title), std::string(row.image), row.appliesTo});
    }

    [[nodiscard]] Names offered(const Selection& selection) const
    {
        Names names;
        for (const MenuEntry& entry : makeMenu(settings, selection).entries)
            names.push_back(entry.action->identifier);
        return names;
    }
    [[nodiscard]] bool offers(const char* identifier, const Selection& selection) const
    {
        return std::ranges::count(offered(selection), identifier) == 1;
    }

    MenuSettings settings{.actions = {}, .scope = Scope({{"/in", true}, {"/in/off", false}}), .targets = {}};
};

TEST_F(OfferedMenu, HasNothingForAnEmptySelection)
{
    EXPECT_EQ(offered({}), Names{});
    EXPECT_EQ(offered({.items = {}, .isBackground = true}), Names{});
}

TEST_F(OfferedMenu, HasNothingWhereAnItemIsOutOfScope)
{
    EXPECT_EQ(offered(selected({outside})), Names{});
    EXPECT_EQ(offered(selected({file, outside})), Names{});
    EXPECT_EQ(offered(selected({file, {.path = "/in/off/a"}})), Names{});
    EXPECT_EQ(offered(selected({{.path = "/in", .isFolder = true}})), Names{});
    EXPECT_EQ(offered(background("/")), Names{});
    EXPECT_EQ(offered(background("/in/off")), Names{});
}

TEST_F(OfferedMenu, IsInTheOrderOfTheSettingsUnderTheirTitles)
{
    settings.actions = {{"add-folders", "B", "", AppliesTo::Anything},
                        {"open-terminal", "A", "", AppliesTo::Anything}};
    EXPECT_EQ(offered(selected({file})), (Names{"add-folders", "open-terminal"}));
    EXPECT_EQ(makeMenu(settings, selected({file})).entries.front().action->title, "B");
}

TEST_F(OfferedMenu, HasForAFileWhatAppliesToOne)
{
    EXPECT_EQ(offered(selected({file})),
              (Names{"open-terminal", "open-system-preferences", "copy-path-to-clipboard", "send-via-mail",
                     "move-to-a-folder", "copy-to-a-folder", "open-new-finder-window", "hide-unhide-item",
                     "configure-orvik-menu-settings"}));
}

TEST_F(OfferedMenu, HasForAFolderWhatAppliesToOne)
{
    EXPECT_EQ(
        offered(selected({folder})),
        (Names{"open-terminal", "open-system-preferences", "create-new-text-file", "copy-path-to-clipboard",
               "send-via-mail", "move-to-a-folder", "copy-to-a-folder", "open-new-finder-window", "hide-unhide-item",
               "find-duplicate-files", "find-duplicate-photos", "configure-orvik-menu-settings", "add-folders"}));
}

TEST_F(OfferedMenu, HasForABackgroundWhatAppliesToOne)
{
    EXPECT_EQ(offered(background("/in")),
              (Names{"open-terminal", "open-system-preferences", "create-new-text-file", "copy-path-to-clipboard",
                     "open-new-finder-window", "find-duplicate-files", "find-duplicate-photos",
                     "configure-orvik-menu-settings", "add-folders"}));
}

TEST_F(OfferedMenu, HasForSeveralItemsWhatAppliesToAllOfThem)
{
    EXPECT_EQ(offered(selected({file, folder})),
              (Names{"open-system-preferences", "copy-path-to-clipboard", "move-to-a-folder", "copy-to-a-folder",
                     "hide-unhide-item", "find-duplicate-files", "find-duplicate-photos",
                     "configure-orvik-menu-settings"}));
    EXPECT_TRUE(offers("add-folders", selected({folder, {.path = "/in/2", .isFolder = true}})));
    EXPECT_FALSE(offers("create-new-text-file", selected({folder, {.path = "/in/2", .isFolder = true}})));
}

TEST_F(OfferedMenu, HasWhatIsForPicturesForPicturesAlone)
{
    EXPECT_TRUE(offers("set-as-wallpaper", selected({picture})));
    EXPECT_TRUE(offers("resize-photos", selected({picture})));
    EXPECT_TRUE(offers("view-or-edit-exif-data", selected({picture, picture})));
    EXPECT_FALSE(offers("set-as-wallpaper", selected({picture, picture})));
    EXPECT_FALSE(offers("resize-photos", selected({picture, file})));
    EXPECT_FALSE(offers("set-as-wallpaper", background("/in")));
}

TEST_F(OfferedMenu, HasTheCustomFoldersBelowWhatMovesOrCopiesAlone)
{
    settings.targets = targetsOf(Names{"/one", "/two"});
    int submenus = 0;
    const Menu menu = makeMenu(settings, selected({file, folder}));
    for (const auto& [action, targets] : menu.entries) {
        const bool takesFolder = action->identifier == "move-to-a-folder" || action->identifier == "copy-to-a-folder";
        submenus += takesFolder ? 1 : 0;
        EXPECT_EQ(targets.size(), takesFolder ? 2U : 0U) << action->identifier;
    }
    EXPECT_EQ(submenus, 2);
    EXPECT_EQ(menu.entries[2].targets.front().path, "/one");
}

TEST_F(OfferedMenu, HasNoSubmenuWithoutCustomFolders)
{
    const Menu menu = makeMenu(settings, selected({file}));
    EXPECT_TRUE(std::ranges::all_of(menu.entries, [](const MenuEntry& entry) { return entry.targets.empty(); }));
}

TEST_F(OfferedMenu, SaysHowItIsToBeShown)
{
    EXPECT_TRUE(makeMenu(settings, selected({file})).showIcons);
    EXPECT_FALSE(makeMenu(settings, selected({file})).inSubmenu);
    settings.showIcons = false;
    settings.inSubmenu = true;
    EXPECT_FALSE(makeMenu(settings, selected({file})).showIcons);
    EXPECT_TRUE(makeMenu(settings, selected({file})).inSubmenu);
}

TEST_F(OfferedMenu, OfTwoThousandItemsLooksAtEachOfThem)
{
    std::vector<SelectedItem> items(2000, file);
    EXPECT_TRUE(offers("hide-unhide-item", selected(items)));
    items.back() = outside;
    EXPECT_EQ(offered(selected(items)), Names{});
}

} // namespace

TEST_F(OfferedMenu, IsMadeWithoutAskingTheSystemForAnything)
{
    std::vector<Folder> folders;
    for (int number = 0; number < 1000; ++number)
        folders.push_back({"/in/" + std::to_string(number), true});
    settings.scope = Scope(folders);
    settings.targets = targetsOf(Names(50, "/in/1"));
    const Selection selection = selected({{.path = "/in/7/deep/below/a.txt"}, {.path = "/in/8/b.txt"}});
    const std::size_t expected = offered(selection).size();
    ASSERT_GT(expected, 0U);

    const pid_t child = ::fork();
    if (child == 0) {
        // From here on any call but the one that ends the process kills it.
        ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_STRICT);
        const bool same = makeMenu(settings, selection).entries.size() == expected;
        ::syscall(SYS_exit, same ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status)) << "killed by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0);
}
