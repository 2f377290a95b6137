#include "Properties.h"

#include "extension/bridges/gtk/PublishedSettings.h"

#include <gtest/gtest.h>

using namespace MenuExtension;

namespace {

MenuSettings settingsFrom(const Properties& properties)
{
    return settingsFromProperties(*properties.all());
}

/// One action in one folder, so that what is not there can be told from what is.
Properties sound()
{
    return Properties()
        .with("Actions", "[('hide', 'Hide', 'orvik-menu-hide', uint32 70)]")
        .with("Scope", Properties::scope({{"/listed"}}));
}

/// Whether a property in the place of the sound one counts as though there were none.
testing::AssertionResult countsAsAbsent(const std::string& name, GVariant* value)
{
    const MenuSettings settings = settingsFrom(Properties().with(name, value).with("Other", "1"));
    const MenuSettings nothing;
    if (settings.actions == nothing.actions && !settings.scope.containsItem("/listed/item") &&
        settings.targets == nothing.targets && settings.showIcons == nothing.showIcons &&
        settings.inSubmenu == nothing.inSubmenu)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << name << " counts";
}

testing::AssertionResult countsAsAbsent(const std::string& name, const std::string& value)
{
    return countsAsAbsent(name, g_variant_new_parsed(value.c_str())) << ": " << value;
}

} // namespace

TEST(PublishedSettings, AreWhatTheCompanionSays)
{
    const MenuSettings settings =
        settingsFrom(Properties()
                         .with("Actions", "[('b', 'To_B', 'icon-b', uint32 3), ('a', 'A', 'i', 127)]")
                         .with("Scope", Properties::bytes(std::string("+/listed\0-/listed/not\0", 22)))
                         .with("CustomFolders", "['/b/', '/a b']")
                         .with("ShowMenuIcon", "false")
                         .with("ShowInSubmenu", "true"));
    EXPECT_EQ(settings.targets, (std::vector<Target>{{"/b", "b", "/b"}, {"/a b", "a b", "/a b"}}));
    EXPECT_EQ(settings.actions, (std::vector<MenuAction>{{"b", "To_B", "icon-b", 3}, {"a", "A", "i", 127}}));
    EXPECT_TRUE(settings.scope.containsItem("/listed/item"));
    EXPECT_FALSE(settings.scope.containsItem("/listed/not/item"));
    EXPECT_FALSE(settings.showIcons);
    EXPECT_TRUE(settings.inSubmenu);
}

TEST(PublishedSettings, WithoutPropertiesOfferNothing)
{
    const MenuSettings settings = settingsFrom({});
    EXPECT_TRUE(settings.actions.empty());
    EXPECT_FALSE(settings.scope.containsItem("/item"));
    EXPECT_TRUE(settings.showIcons);
    EXPECT_FALSE(settings.inSubmenu);
}

TEST(PublishedSettings, LeaveOutAPropertyOfTheWrongType)
{
    for (const char* value :
         {"1", "'text'", "@as []", "['hide']", "[('hide', 'Hide')]", "[('hide', 'Hide', 'icon', int32 70)]",
          "('hide', 'Hide', 'icon', uint32 70)", "<[('hide', 'Hide', 'icon', uint32 70)]>", "@a{sv} {}"})
        EXPECT_TRUE(countsAsAbsent("Actions", value));
    for (const char* value :
         {"true", "'+/listed'", "['+/listed']", "[b'+/listed']", "[('/listed', true)]", "<b'+/listed'>"})
        EXPECT_TRUE(countsAsAbsent("Scope", value));
    for (const char* value : {"'/a'", "[('/a', true)]", "[b'/a']", "[<'/a'>]", "[['/a']]", "@ao ['/a']"})
        EXPECT_TRUE(countsAsAbsent("CustomFolders", value));
    EXPECT_TRUE(countsAsAbsent("ShowMenuIcon", "0"));
    EXPECT_TRUE(countsAsAbsent("ShowMenuIcon", "'false'"));
    EXPECT_TRUE(countsAsAbsent("ShowInSubmenu", "<true>"));
    EXPECT_TRUE(countsAsAbsent("ShowInSubmenu", "[true]"));
}

TEST(PublishedSettings, CallWhatAsksForAnotherFolderAsTheCompanionDoes)
{
    EXPECT_EQ(settingsFrom(sound().with("OtherFolder", "['Ordner wählen …', 'Fragt']")).otherFolder,
              (Target{"", "Ordner wählen …", "Fragt"}));
}

TEST(PublishedSettings, CallWhatAsksForAnotherFolderInEnglishWhereTheCompanionSaysNothingOfUse)
{
    const Target english = MenuSettings().otherFolder;
    EXPECT_EQ(english.title, "Choose Folder…");
    EXPECT_EQ(settingsFrom(sound()).otherFolder, english);
    for (const char* value : {"'Title'", "@as []", "['Title']", "['', 'Tip']", "['Title', '']", "['a', 'b', 'c']"})
        EXPECT_EQ(settingsFrom(sound().with("OtherFolder", value)).otherFolder, english) << value;
}

TEST(PublishedSettings, OneWrongPropertyLeavesTheOthers)
{
    const MenuSettings settings = settingsFrom(sound().with("ShowInSubmenu", "'x'").with("ShowMenuIcon", "false"));
    EXPECT_EQ(settings.actions.size(), 1U);
    EXPECT_TRUE(settings.scope.containsItem("/listed/item"));
    EXPECT_FALSE(settings.inSubmenu);
    EXPECT_FALSE(settings.showIcons);
}

TEST(PublishedSettings, HaveNoActionWhoseNamesAreNone)
{
    const std::string longest(100, 'a');
    for (const std::string& name :
         {std::string(), std::string("a b"), std::string("../a"), std::string("a/b"), std::string("/etc/icon.png"),
          std::string("caf\xC3\xA9"), std::string("a\tb"), std::string("&a"), longest + 'a'}) {
        EXPECT_TRUE(
            countsAsAbsent("Actions", g_variant_new_parsed("[(%s, 'Title', 'icon', uint32 1)]", name.c_str())))
            << name;
        EXPECT_TRUE(countsAsAbsent("Actions", g_variant_new_parsed("[('a', 'Title', %s, uint32 1)]", name.c_str())))
            << name;
    }
    EXPECT_FALSE(
        countsAsAbsent("Actions", g_variant_new_parsed("[(%s, 'Title', 'icon', uint32 1)]", longest.c_str())));
}

TEST(PublishedSettings, HaveNoActionWithoutATitleOrWithAnEndlessOne)
{
    const std::string longest(1000, 't');
    EXPECT_TRUE(countsAsAbsent("Actions", "[('a', '', 'icon', uint32 1)]"));
    EXPECT_TRUE(
        countsAsAbsent("Actions", g_variant_new_parsed("[('a', %s, 'icon', uint32 1)]", (longest + 't').c_str())));
    EXPECT_FALSE(countsAsAbsent("Actions", g_variant_new_parsed("[('a', %s, 'icon', uint32 1)]", longest.c_str())));
}

TEST(PublishedSettings, HaveAnActionOnce)
{
    const MenuSettings settings = settingsFrom(Properties().with(
        "Actions", "[('a', 'First', 'icon', uint32 1), ('b', 'B', 'icon', 2), ('a', 'Second', 'icon', uint32 3)]"));
    EXPECT_EQ(settings.actions, (std::vector<MenuAction>{{"a", "First", "icon", 1}, {"b", "B", "icon", 2}}));
}

TEST(PublishedSettings, HaveNoMoreActionsThanAMenuCanShow)
{
    std::vector<std::string> identifiers;
    for (int number = 0; number < 100; ++number)
        identifiers.push_back("action-" + std::to_string(number));
    EXPECT_EQ(settingsFrom(Properties().with("Actions", Properties::actions(identifiers))).actions.size(), 100U);
    identifiers.emplace_back("one-more");
    EXPECT_TRUE(countsAsAbsent("Actions", Properties::actions(identifiers)));
}

TEST(PublishedSettings, HaveNoScopeOfBytesThatAreNotFolders)
{
    EXPECT_FALSE(countsAsAbsent("Scope", Properties::bytes(std::string("+/listed\0", 9))));
    for (const std::string& bytes :
         {std::string("+/listed"), std::string("/listed\0", 8), std::string("+/listed\0\0", 10),
          std::string("+/listed\0+", 10), std::string("*/listed\0", 9)})
        EXPECT_TRUE(countsAsAbsent("Scope", Properties::bytes(bytes)));
    EXPECT_TRUE(countsAsAbsent("Scope", Properties::bytes("")));
}

TEST(PublishedSettings, HaveNoMoreCustomFoldersThanAMenuCanShow)
{
    std::vector<std::string> folders(100'000, "/many");
    const std::size_t last = mostTargets - 1;
    folders[0] = '/' + std::string(std::size_t(16) << 20U, 'a');
    folders[last - 1] = "relative";
    folders[last] = "/last";
    folders[last + 1] = "/one/more";
    EXPECT_EQ(settingsFrom(Properties().with("CustomFolders", Properties::texts(folders))).targets,
              (std::vector<Target>{{"/many", "many", "/many"}, {"/last", "last", "/last"}}));
}

TEST(PublishedSettings, AreNotLookedForAmongThousands)
{
    Properties properties = sound();
    for (int number = 0; number < 99; ++number)
        properties.with("Property" + std::to_string(number), "0");
    EXPECT_TRUE(settingsFrom(properties).actions.empty());
}

TEST(PublishedSettings, OfDamagedBytesAreReadWithoutHarm)
{
    const Variant all = sound().with("ShowMenuIcon", "true").with("CustomFolders", "['/a/x', '/b/x']").all();
    const auto* bytes = static_cast<const char*>(g_variant_get_data(all.get()));
    const std::string whole(bytes, g_variant_get_size(all.get()));
    for (std::size_t position = 0; position < whole.size(); ++position) {
        for (const char damage : {'\0', '\x01', '\x7f', '\x80', '\xff'}) {
            std::string damaged = whole;
            damaged[position] = damage;
            const Variant read(g_variant_ref_sink(g_variant_new_from_data(G_VARIANT_TYPE_VARDICT, damaged.data(),
                                                                          damaged.size(), FALSE, nullptr, nullptr)));
            const MenuSettings settings = settingsFromProperties(*read);
            EXPECT_LE(settings.actions.size(), 1U);
            for (const MenuAction& action : settings.actions)
                EXPECT_TRUE(g_utf8_validate(action.title.c_str(), -1, nullptr) && !action.identifier.empty());
            EXPECT_LE(settings.targets.size(), 2U);
            for (const Target& target : settings.targets)
                EXPECT_TRUE(target.path.starts_with('/') && g_utf8_validate(target.title.c_str(), -1, nullptr));
        }
    }
}
