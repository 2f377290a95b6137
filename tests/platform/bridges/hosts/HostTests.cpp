#include "HostFiles.h"
#include "HostModule.h"

#include "../../bus/PrivateBus.h"
#include "../../bus/Waiting.h"
#include "../CompanionStandIn.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using namespace MenuExtension;
using namespace std::chrono_literals;

namespace {

using Call = CompanionStandIn::Call;

/// A host's menu.
class Items {
public:
    explicit Items(GList* items) : m_list(items) {}
    ~Items() { g_list_free_full(m_list, &g_object_unref); }
    Items(Items&& other) noexcept : m_list(std::exchange(other.m_list, nullptr)) {}
    Items& operator=(Items&&) = delete;

    [[nodiscard]] std::vector<std::string> all(const char* property) const
    {
        std::vector<std::string> texts;
        for (const GList* node = m_list; node; node = node->next)
            texts.push_back(text(G_OBJECT(node->data), property));
        return texts;
    }
    [[nodiscard]] std::vector<std::string> labels() const { return all("label"); }

    [[nodiscard]] bool isEmpty() const { return !m_list; }
    [[nodiscard]] TestedHost::Item* item(guint index) const
    {
        return static_cast<TestedHost::Item*>(g_list_nth_data(m_list, index));
    }
    void activate(guint index) const { TestedHost::activate(item(index)); }

    /// What is below an item.
    [[nodiscard]] Items submenu(guint index) const
    {
        GObject* submenu = nullptr;
        g_object_get(item(index), "menu", &submenu, nullptr);
        const Reference<GObject> owned(submenu);
        return Items(submenu ? TestedHost::itemsOf(reinterpret_cast<TestedHost::Submenu*>(submenu)) : nullptr);
    }

private:
    static std::string text(GObject* object, const char* property)
    {
        char* text = nullptr;
        g_object_get(object, property, &text, nullptr);
        const Text owned(text);
        return text ? text : "(none)";
    }

    GList* m_list;
};

class HostTest : public testing::Test {
protected:
    // A process has one bus, and a module one copy.
    static void SetUpTestSuite()
    {
        s_bus = std::make_unique<PrivateBus>();
        ASSERT_NE(HostModule::providerType(), GType(0));
    }
    static void TearDownTestSuite() { s_bus.reset(); }

    void SetUp() override
    {
        HostFile::locationQuestions = 0;
        HostFile::mimeTypeQuestions = 0;
        m_companion.publish(properties());
        m_companion.takeName();
        ASSERT_TRUE(offers({{listed}}, 4));
    }
    void TearDown() override
    {
        if (!s_bus)
            return;
        m_companion.leaveName();
        EXPECT_TRUE(offers({{listed}}, 0));
    }

    static Properties properties()
    {
        return Properties()
            .with("Actions",
                  "[('one_file', 'For_one file', 'icon-1', uint32 4), ('anything', 'Anything', 'icon-2', 127),"
                  " ('picture', 'Picture', 'icon-3', 40), ('copy-path-to-clipboard', 'Copy', 'icon-4', 71),"
                  " ('folders', 'Folders', 'icon-5', 19)]")
            .with("Scope", Properties::scope({{"/listed"}, {"/listed/off", false}, {"/listed/\xc3\xa4"}}));
    }

    /// The actions that move or copy, and custom folders.
    static Properties
    withCustomFolders(const char* folders = "['/a_b/c', '/elsewhere/c', 'none', '/listed/\xc3\xa4 b']")
    {
        return Properties()
            .with("Actions",
                  "[('move-to-a-folder', 'Move', 'icon-1', uint32 198), ('anything', 'Anything', 'icon-2', 127),"
                  " ('copy-to-a-folder', 'Copy', 'icon-3', 198)]")
            .with("Scope", Properties::scope({{"/listed"}}))
            .with("CustomFolders", folders);
    }

    [[nodiscard]] Items itemsFor(const std::vector<File>& files) const
    {
        return Items(TestedHost::itemsForFiles(m_provider.get(), Files(files).list()));
    }
    [[nodiscard]] Items itemsForBackground(const std::string& address) const
    {
        return Items(TestedHost::itemsForBackground(m_provider.get(), Files({{address, true}}).first()));
    }

    /// Waits for that many items in a menu.
    [[nodiscard]] bool offers(const std::vector<File>& files, std::size_t count) const
    {
        return waitUntil([&] { return itemsFor(files).labels().size() == count; });
    }

    void publish(const Properties& properties)
    {
        m_companion.publish(properties);
        m_companion.announce();
    }

    [[nodiscard]] bool wasCalled(const Call& call)
    {
        return waitUntil([&] { return !m_companion.calls().empty(); }) && m_companion.calls().back() == call;
    }

    using Texts = std::vector<std::string>;

    static bool haveOneInCommon(const Texts& some, const Texts& others)
    {
        return std::ranges::find_first_of(some, others) != some.end();
    }
    inline static const File listed{"file:///listed/picture", false, "image/png"};

    inline static std::unique_ptr<PrivateBus> s_bus;
    CompanionStandIn m_companion{s_bus->address().toStdString()};
    Reference<GObject> m_provider{static_cast<GObject*>(g_object_new(HostModule::providerType(), nullptr))};
};

} // namespace

TEST_F(HostTest, OffersWhatAppliesInTheOrderOfTheCompanion)
{
    EXPECT_EQ(itemsFor({{"file:///listed/a"}}).labels(), (Texts{"For__one file", "Anything", "Copy"}));
    EXPECT_EQ(itemsFor({{"file:///listed/a"}, {"file:///listed/b"}}).labels(), (Texts{"Anything", "Copy"}));
    EXPECT_EQ(itemsFor({listed}).labels(), (Texts{"For__one file", "Anything", "Picture", "Copy"}));
    EXPECT_EQ(itemsFor({listed, listed}).labels(), (Texts{"Anything", "Picture", "Copy"}));
    EXPECT_EQ(itemsFor({listed, {"file:///listed/a"}}).labels(), (Texts{"Anything", "Copy"}));
    EXPECT_EQ(itemsFor({{"file:///listed/a", true}}).labels(), (Texts{"Anything", "Copy", "Folders"}));
    EXPECT_EQ(itemsForBackground("file:///listed").labels(), (Texts{"Anything", "Copy", "Folders"}));
}

TEST_F(HostTest, OffersNothingElsewhere)
{
    EXPECT_TRUE(itemsFor({}).isEmpty());
    for (const char* address : {"file:///", "file:///listed", "file:///other/a", "file:///listed/off/a", "trash:///a",
                                "sftp://host/listed/a", "file:///listedmore"})
        EXPECT_TRUE(itemsFor({{address}}).isEmpty()) << address;
    for (const char* address : {"file:///", "file:///other", "file:///listed/off", "x-nautilus-search://1/"})
        EXPECT_TRUE(itemsForBackground(address).isEmpty()) << address;
    EXPECT_TRUE(itemsFor({listed, {"file:///other/a"}}).isEmpty());
    EXPECT_TRUE(itemsFor({listed, {"trash:///a"}}).isEmpty());
}

TEST_F(HostTest, NamesItemsOfFilesAndOfBackgroundsApart)
{
    const Texts ofFile = itemsFor({{"file:///listed/a"}}).all("name");
    const Texts ofBackground = itemsForBackground("file:///listed").all("name");
    EXPECT_EQ(ofFile.size(), 3U);
    EXPECT_EQ(ofBackground.size(), 3U);
    EXPECT_FALSE(haveOneInCommon(ofFile, ofBackground));
}

TEST_F(HostTest, NamesItemsAnewOnceTheSettingsHaveChanged)
{
    const Texts before = itemsFor({{"file:///listed/a"}}).all("name");
    EXPECT_EQ(itemsFor({{"file:///listed/a"}}).all("name"), before);
    publish(properties().with("ShowMenuIcon", "false"));
    EXPECT_TRUE(waitUntil([&] {
        const Texts names = itemsFor({{"file:///listed/a"}}).all("name");
        return names.size() == before.size() && !haveOneInCommon(names, before);
    }));
}

TEST_F(HostTest, ShowsIconsUnlessTheyAreOff)
{
    EXPECT_EQ(itemsFor({{"file:///listed/a"}}).all("icon"), (Texts{"icon-1", "icon-2", "icon-4"}));
    publish(properties().with("ShowMenuIcon", "false"));
    EXPECT_TRUE(waitUntil([&] { return itemsFor({{"file:///listed/a"}}).all("icon") == Texts(3, "(none)"); }));
}

TEST_F(HostTest, ShowsASubmenuWhereThatIsWanted)
{
    publish(properties().with("ShowInSubmenu", "true"));
    ASSERT_TRUE(offers({listed}, 1));
    const Items items = itemsFor({{"file:///listed/a"}});
    EXPECT_EQ(items.labels(), Texts{"Orvik Menu"});
    EXPECT_EQ(items.all("name").size(), 1U);
    const Items below = items.submenu(0);
    EXPECT_EQ(below.labels(), (Texts{"For__one file", "Anything", "Copy"}));
    below.activate(1);
    EXPECT_TRUE(wasCalled({"anything", {"/listed/a"}, false}));
    EXPECT_TRUE(itemsFor({{"file:///other/a"}}).isEmpty());
}

TEST_F(HostTest, OffersTheCustomFoldersBelowWhatMovesOrCopies)
{
    publish(withCustomFolders());
    ASSERT_TRUE(offers({listed}, 3));
    const Items items = itemsFor({listed, {"file:///listed/folder", true}});
    EXPECT_EQ(items.labels(), (Texts{"Move", "Anything", "Copy"}));
    EXPECT_EQ(items.all("icon"), (Texts{"icon-1", "icon-2", "icon-3"}));
    EXPECT_TRUE(items.submenu(1).isEmpty());
    for (const guint index : {0U, 2U}) {
        const Items below = items.submenu(index);
        EXPECT_EQ(below.labels(), (Texts{"c (a__b)", "c (elsewhere)", "\xc3\xa4 b", "Choose Folder\u2026"}));
        EXPECT_EQ(below.all(TestedHost::tip),
                  (Texts{"/a_b/c", "/elsewhere/c", "/listed/\xc3\xa4 b", "Asks for another folder"}));
        EXPECT_EQ(below.all("icon"), (Texts{"folder", "folder", "folder", "(none)"}));
    }
    EXPECT_FALSE(haveOneInCommon(items.submenu(0).all("name"), items.submenu(2).all("name")));
    EXPECT_EQ(itemsForBackground("file:///listed").labels(), Texts{"Anything"});

    publish(withCustomFolders().with("ShowMenuIcon", "false"));
    EXPECT_TRUE(waitUntil([&] { return itemsFor({listed}).submenu(0).all("icon") == Texts(4, "(none)"); }));
}

TEST_F(HostTest, NamesTheCustomFolderThatWasChosenToTheCompanion)
{
    publish(withCustomFolders());
    ASSERT_TRUE(offers({listed}, 3));
    const Items items = itemsFor({listed});
    items.submenu(0).activate(2);
    EXPECT_TRUE(wasCalled({"move-to-a-folder", {"/listed/picture"}, false, "/listed/\xc3\xa4 b"}));
    items.submenu(2).activate(0);
    EXPECT_TRUE(waitUntil([&] { return m_companion.calls().size() == 2; }));
    EXPECT_EQ(m_companion.calls().back(), (Call{"copy-to-a-folder", {"/listed/picture"}, false, "/a_b/c"}));
    items.submenu(2).activate(3);
    EXPECT_TRUE(waitUntil([&] { return m_companion.calls().size() == 3; }));
    EXPECT_EQ(m_companion.calls().back(), (Call{"copy-to-a-folder", {"/listed/picture"}, false}));
}

TEST_F(HostTest, AsksForAFolderAtOnceWhereThereAreNoCustomFolders)
{
    publish(withCustomFolders());
    ASSERT_TRUE(offers({listed}, 3));
    publish(withCustomFolders("@as []"));
    EXPECT_TRUE(waitUntil([&] { return itemsFor({listed}).submenu(0).isEmpty(); }));
    itemsFor({listed}).activate(0);
    EXPECT_TRUE(wasCalled({"move-to-a-folder", {"/listed/picture"}, false}));
}

TEST_F(HostTest, HasTheCustomFoldersInASubmenuOfTheSubmenu)
{
    publish(withCustomFolders().with("ShowInSubmenu", "true"));
    ASSERT_TRUE(offers({listed}, 1));
    const Items items = itemsFor({listed});
    const Items below = items.submenu(0);
    EXPECT_EQ(below.labels(), (Texts{"Move", "Anything", "Copy"}));
    below.submenu(2).activate(1);
    EXPECT_TRUE(wasCalled({"copy-to-a-folder", {"/listed/picture"}, false, "/elsewhere/c"}));
}

TEST_F(HostTest, AsksTheCompanionToDoAnAction)
{
    itemsFor({{"file:///listed/a%20b"}, {"file:///listed/%FF%0A%27"}}).activate(0);
    EXPECT_TRUE(wasCalled({"anything", {"/listed/a b", "/listed/\xff\n'"}, false}));
    itemsForBackground("file:///listed/%C3%A4/").activate(0);
    EXPECT_TRUE(waitUntil([&] { return m_companion.calls().size() == 2; }));
    EXPECT_EQ(m_companion.calls().back(), (Call{"anything", {"/listed/\xc3\xa4"}, true}));
}

TEST_F(HostTest, DoesWhatItAloneCanItself)
{
    const Items items = itemsFor({{"file:///listed/a"}});
    // There is no display here, and so no clipboard.
    items.activate(2);
    items.activate(1);
    ASSERT_TRUE(wasCalled({"anything", {"/listed/a"}, false}));
    EXPECT_EQ(m_companion.calls().size(), 1U);
}

TEST_F(HostTest, DoesWhatAMenuShowedThatWasOpenDuringAChange)
{
    const Items items = itemsFor({{"file:///listed/a"}});
    publish(Properties());
    ASSERT_TRUE(offers({listed}, 0));
    items.activate(1);
    EXPECT_TRUE(wasCalled({"anything", {"/listed/a"}, false}));
}

TEST_F(HostTest, DoesNothingWhenTheCompanionIsGone)
{
    const Items items = itemsFor({{"file:///listed/a"}});
    m_companion.leaveName();
    ASSERT_TRUE(offers({listed}, 0));
    items.activate(1);
    runFor(50ms);
    EXPECT_TRUE(m_companion.calls().empty());
}

TEST_F(HostTest, TellsTheHostThatItsItemsAreOutdatedWhereItDoesNotAskEachTime)
{
    int told = 0;
    if (TestedHost::isToldOfChanges)
        g_signal_connect_swapped(m_provider.get(), "items-updated", G_CALLBACK(+[](int* count) { ++*count; }), &told);
    publish(Properties());
    ASSERT_TRUE(offers({listed}, 0));
    EXPECT_EQ(told > 0, TestedHost::isToldOfChanges);
    const int before = told;
    m_companion.leaveName();
    EXPECT_TRUE(waitUntil([&] { return told > before || !TestedHost::isToldOfChanges; }));
    g_signal_handlers_disconnect_by_data(m_provider.get(), &told);
}

TEST_F(HostTest, KnowsTheCompanionWhenTheHostMakesAnotherProvider)
{
    m_provider.reset();
    publish(properties().with("ShowInSubmenu", "true"));
    runFor(50ms);
    m_provider.reset(static_cast<GObject*>(g_object_new(HostModule::providerType(), nullptr)));
    EXPECT_EQ(itemsFor({listed}).labels(), Texts{"Orvik Menu"});
}

TEST_F(HostTest, StopsAtTheFirstFileOutOfScope)
{
    std::vector<File> files(10'000, {"file:///listed/a"});
    files[1].address = "file:///other/a";
    const Files many(files);
    HostFile::locationQuestions = 0;
    EXPECT_EQ(TestedHost::itemsForFiles(m_provider.get(), many.list()), nullptr);
    EXPECT_EQ(HostFile::locationQuestions, 2);
}

TEST_F(HostTest, TakesTenThousandFiles)
{
    std::vector<File> files;
    for (int number = 0; number < 10'000; ++number)
        files.push_back({"file:///listed/a/file/in/some/folder/" + std::to_string(number)});
    const Files many(files);
    HostFile::mimeTypeQuestions = 0;
    const Items items(TestedHost::itemsForFiles(m_provider.get(), many.list()));
    EXPECT_EQ(items.labels(), (Texts{"Anything", "Copy"}));
    // That one is no picture answers for all.
    EXPECT_EQ(HostFile::mimeTypeQuestions, 1);
    items.activate(0);
    ASSERT_TRUE(waitUntil([&] { return m_companion.calls().size() == 1; }));
    EXPECT_EQ(m_companion.calls().back().paths.size(), 10'000U);
    EXPECT_EQ(m_companion.calls().back().paths[9'999], "/listed/a/file/in/some/folder/9999");
}

TEST_F(HostTest, OffersNothingForMorePathsThanTheBusCarries)
{
    const std::string name = '/' + std::string(250, 'x');
    std::string folder = "file:///listed";
    for (int depth = 0; depth < 15; ++depth)
        folder += name;
    EXPECT_EQ(itemsFor(std::vector<File>(8'000, {folder})).labels(), (Texts{"Anything", "Copy"}));
    EXPECT_TRUE(itemsFor(std::vector<File>(9'000, {folder})).isEmpty());
}

TEST_F(HostTest, LeavesNothingOfAMenuBehind)
{
    static int alive = 0;
    const auto note = [](Items& items) {
        for (guint index = 0; items.item(index); ++index) {
            ++alive;
            g_object_weak_ref(
                G_OBJECT(items.item(index)), [](gpointer, GObject*) { --alive; }, nullptr);
        }
    };
    publish(withCustomFolders().with("ShowInSubmenu", "true"));
    ASSERT_TRUE(offers({listed}, 1));
    {
        Items items = itemsFor({listed});
        note(items);
        Items below = items.submenu(0);
        note(below);
        for (const guint index : {0U, 2U}) {
            Items folders = below.submenu(index);
            note(folders);
        }
        EXPECT_EQ(alive, 12);
    }
    EXPECT_EQ(alive, 0);
}

TEST_F(HostTest, OffersNothingOfGarbage)
{
    publish(Properties()
                .with("Actions", "[('../../a', 'Title', '/etc/icon.png', uint32 127)]")
                .with("Scope", Properties::scope({{"relative"}, {""}})));
    EXPECT_TRUE(offers({listed}, 0));
    EXPECT_TRUE(itemsFor({{"file:///relative/a"}}).isEmpty());
    publish(properties());
    EXPECT_TRUE(offers({listed}, 4));
}

// The last one: there is no bus afterwards.
TEST_F(HostTest, GoesOnWithoutTheBus)
{
    const Items items = itemsFor({{"file:///listed/a"}});
    s_bus->kill();
    items.activate(1);
    EXPECT_TRUE(offers({listed}, 0));
    items.activate(1);
    runFor(50ms);
    s_bus.reset();
}
