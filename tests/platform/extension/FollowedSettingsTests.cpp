#include "../bus/Waiting.h"
#include "Announcements.h"
#include "CompanionProcess.h"
#include "platform/linux/store/PropertyList.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>

using namespace std::chrono_literals;
using Array = NS::Value::Array;
using Dictionary = NS::Value::Dictionary;
namespace fs = std::filesystem;

namespace {

void writeInPlace(const std::string& path, std::string_view text)
{
    std::ofstream(path) << text;
}

struct FollowedSettings : CompanionTest {
    [[nodiscard]] bool showsInSubmenu(bool expected)
    {
        return waitUntil([&] { return flag("ShowInSubmenu") == expected; });
    }
};

} // namespace

TEST_F(FollowedSettings, AreReadAtTheStart)
{
    store({{"menuArrayDic", Array{Dictionary{{"title", "Open Terminal"}, {"state", true}},
                                  Dictionary{{"title", "Resize Photos"}, {"state", false}}}},
           {"foldersArray", Array{"/a b", "/c"}},
           {"foldersArraystate", Array{1, 0}},
           {"arrCustomFoldersUrls", Array{"/x"}},
           {"showmenuicon", false},
           {"showinSubMenu", true}});
    startAndWait();
    EXPECT_EQ(items("MenuItems"), (Items{{"Open Terminal", true}, {"Resize Photos", false}}));
    EXPECT_EQ(items("Folders"), (Items{{"/a b", true}, {"/c", false}}));
    EXPECT_EQ(strings("CustomFolders"), QStringList{QStringLiteral("/x")});
    EXPECT_EQ(strings("DirectoryURLs"), (QStringList{QStringLiteral("file:///a%20b"), QStringLiteral("file:///c")}));
    EXPECT_FALSE(flag("ShowMenuIcon"));
    EXPECT_TRUE(flag("ShowInSubmenu"));
}

TEST_F(FollowedSettings, AreTheDefaultsWhereThereIsNoFolder)
{
    startAndWait();
    EXPECT_TRUE(flag("ShowMenuIcon"));
    EXPECT_FALSE(flag("ShowInSubmenu"));
    EXPECT_FALSE(fs::exists(settingsFolder())) << "the settings are not the companion's to make";
    store({{"showinSubMenu", true}});
    EXPECT_TRUE(showsInSubmenu(true));
}

TEST_F(FollowedSettings, AnnounceWhatHasChangedAndNothingElse)
{
    store({{"showinSubMenu", true}});
    startAndWait();
    Announcements announced(connection());
    store({{"showinSubMenu", true}, {"foldersArray", Array{"/a"}}});
    ASSERT_TRUE(waitUntil([&] { return !announced.isEmpty(); }));
    EXPECT_EQ(announced.take(), (QStringList{QStringLiteral("DirectoryURLs"), QStringLiteral("Folders")}));

    store({{"showinSubMenu", true}, {"foldersArray", Array{"/a"}}, {"somebodyElses", 1}});
    store({{"showinSubMenu", false}, {"foldersArray", Array{"/a"}}});
    ASSERT_TRUE(waitUntil([&] { return !announced.isEmpty(); }));
    runFor(100ms);
    EXPECT_EQ(announced.take(), QStringList{QStringLiteral("ShowInSubmenu")});
}

TEST_F(FollowedSettings, AreThereForMenusInLittleSpace)
{
    store({{"foldersArray", Array{"/a b/", "/c"}}, {"foldersArraystate", Array{1, 0}}});
    startAndWait();
    Announcements announced(connection(), QStringLiteral("com.orvikstudio.FinderSyncMenu"));
    EXPECT_EQ(menuProperties()[QStringLiteral("Scope")].toByteArray(), QByteArray("+/a b/\0-/c\0", 11));

    store({{"foldersArray", Array{"/new"}}, {"arrCustomFoldersUrls", Array{"/x"}}, {"showinSubMenu", true}});
    ASSERT_TRUE(waitUntil([&] { return !announced.isEmpty(); }));
    EXPECT_EQ(announced.take(), QStringList());
    EXPECT_EQ(
        announced.takeThoseWithoutValues(),
        (QStringList{QStringLiteral("Scope"), QStringLiteral("CustomFolders"), QStringLiteral("ShowInSubmenu")}));
    const QVariantMap properties = menuProperties();
    EXPECT_EQ(properties[QStringLiteral("Scope")].toByteArray(), QByteArray("+/new\0", 6));
    EXPECT_EQ(properties[QStringLiteral("CustomFolders")].toStringList(), QStringList{QStringLiteral("/x")});
    EXPECT_TRUE(properties[QStringLiteral("ShowInSubmenu")].toBool());
    EXPECT_EQ(properties[QStringLiteral("OtherFolder")].toStringList(),
              (QStringList{QStringLiteral("Choose Folder…"), QStringLiteral("Asks for another folder")}));
    EXPECT_EQ(properties.keys(), (QStringList{QStringLiteral("Actions"), QStringLiteral("CustomFolders"),
                                              QStringLiteral("OtherFolder"), QStringLiteral("Scope"),
                                              QStringLiteral("ShowInSubmenu"), QStringLiteral("ShowMenuIcon")}));
}

TEST_F(FollowedSettings, FollowAFileThatIsRemovedAndComesBack)
{
    store({{"showinSubMenu", true}});
    startAndWait();
    for (int round = 0; round < 2; ++round) {
        fs::remove(suiteFile());
        EXPECT_TRUE(showsInSubmenu(false));
        store({{"showinSubMenu", true}});
        EXPECT_TRUE(showsInSubmenu(true));
    }
}

TEST_F(FollowedSettings, FollowAFolderThatIsRemovedAndComesBack)
{
    store({{"showinSubMenu", true}});
    startAndWait();
    for (int round = 0; round < 2; ++round) {
        fs::remove_all(settingsFolder());
        EXPECT_TRUE(showsInSubmenu(false));
        store({{"showinSubMenu", true}});
        EXPECT_TRUE(showsInSubmenu(true));
    }
}

TEST_F(FollowedSettings, StayAsTheyAreWhileAnotherProgramSavesInSteps)
{
    bool inSubmenu = true;
    const auto values = [&] { return Dictionary{{"foldersArray", Array{"/a"}}, {"showinSubMenu", inSubmenu}}; };
    store(values());
    QProcess& companion = startAndWait();
    Announcements announced(connection());
    const std::string file = suiteFile();
    const std::vector<std::function<void()>> firstSteps{
        [&] { writeInPlace(file, ""); },
        [&] { writeInPlace(file, "<plist><dict>"); },
        [&] { fs::remove(file); },
        [&] { fs::rename(file, file + "~"); },
    };
    for (std::size_t index = 0; index < firstSteps.size();) {
        inSubmenu = !inSubmenu;
        const std::string text = *LinuxDesktop::PropertyList::serialise(values());
        const auto begin = std::chrono::steady_clock::now();
        firstSteps[index]();
        runFor(30ms);
        writeInPlace(file, text);
        const bool quickly = std::chrono::steady_clock::now() - begin < 150ms;
        EXPECT_TRUE(showsInSubmenu(inSubmenu));
        runFor(300ms);
        const QStringList changed = announced.take();
        // A machine that was busy with other things has not saved as anybody would.
        if (!quickly) {
            companion.readAllStandardError();
            continue;
        }
        EXPECT_EQ(changed, QStringList{QStringLiteral("ShowInSubmenu")}) << index;
        EXPECT_EQ(companion.readAllStandardError(), "") << index;
        ++index;
    }
}

TEST_F(FollowedSettings, FollowALinkInTheFilesPlace)
{
    store({{"showinSubMenu", true}});
    const fs::path target = m_configuration.filePath(QStringLiteral("target")).toStdString();
    fs::rename(suiteFile(), target);
    fs::create_symlink("../target", suiteFile());
    startAndWait();
    EXPECT_TRUE(flag("ShowInSubmenu"));
    store({{"showinSubMenu", false}});
    EXPECT_TRUE(fs::is_symlink(suiteFile()));
    EXPECT_TRUE(showsInSubmenu(false));
}

TEST_F(FollowedSettings, AreThoseOfTheLastGoodCopyWhileTheFileIsDamaged)
{
    store({{"showinSubMenu", true}, {"showmenuicon", false}});
    QProcess& companion = startAndWait();
    const std::string garbage = "<plist><dict><key>showinSub";
    writeInPlace(suiteFile(), garbage);
    ASSERT_TRUE(waitUntil([&] { return companion.readAllStandardError().contains("not a readable property list"); }));
    EXPECT_TRUE(flag("ShowInSubmenu"));
    EXPECT_FALSE(flag("ShowMenuIcon"));

    std::ifstream file(suiteFile());
    EXPECT_EQ(std::string(std::istreambuf_iterator(file), {}), garbage) << "mending it is the panel's affair";
    fs::remove(suiteFile());
    store({{"showinSubMenu", false}});
    EXPECT_TRUE(showsInSubmenu(false));
}

TEST_F(FollowedSettings, AreTheDefaultsWhereADamagedFileHasNoCopy)
{
    fs::create_directory(settingsFolder());
    writeInPlace(suiteFile(), std::string(100'000, '\xff'));
    startAndWait();
    EXPECT_TRUE(flag("ShowMenuIcon"));
    fs::remove(suiteFile());
    store({{"showmenuicon", false}});
    EXPECT_TRUE(waitUntil([&] { return !flag("ShowMenuIcon"); }));
}

TEST_F(FollowedSettings, StayAsTheyAreWhileTheFileCannotBeRead)
{
    store({{"showinSubMenu", true}});
    QProcess& companion = startAndWait();
    fs::remove(suiteFile());
    ASSERT_TRUE(showsInSubmenu(false));
    store({{"showinSubMenu", true}});
    ASSERT_TRUE(showsInSubmenu(true));

    const fs::path away = suiteFile() + ".away";
    fs::create_directory(away);
    ASSERT_EQ(::rename(suiteFile().c_str(), (suiteFile() + ".old").c_str()), 0);
    fs::rename(away, suiteFile());
    ASSERT_TRUE(waitUntil([&] { return companion.readAllStandardError().contains("not a regular file"); }));
    fs::remove(suiteFile());
    store({{"showmenuicon", false}});
    EXPECT_TRUE(waitUntil([&] { return !flag("ShowMenuIcon"); }));
    EXPECT_FALSE(flag("ShowInSubmenu"));
}

TEST_F(FollowedSettings, ReplaceTheWatchedDirectoriesWithTheFolders)
{
    store({{"foldersArray", Array{"/a"}}});
    startAndWait();
    EXPECT_TRUE(watches({QStringLiteral("file:///a")}));
    store({{"foldersArray", Array{"/b", "/c"}}});
    EXPECT_TRUE(watches({QStringLiteral("file:///b"), QStringLiteral("file:///c")}));
    store({});
    EXPECT_TRUE(watches({}));
}

TEST_F(FollowedSettings, MayHoldWhatTheBusCannotCarryWhichIsLeftOut)
{
    // Characters that property lists have and the library's bus has not, and their neighbours.
    for (const std::string character : {"\xef\xb7\x90", "\xef\xb7\xaf", "\xf0\x9f\xbf\xbe", "\xf4\x8f\xbf\xbf"}) {
        const std::string path = "/a" + character + "/";
        store({{"menuArrayDic",
                Array{Dictionary{{"title", path}, {"state", true}}, Dictionary{{"title", "Kept"}, {"state", true}}}},
               {"foldersArray", Array{path, "/kept"}},
               {"foldersArraystate", Array{1, 0}},
               {"arrCustomFoldersUrls", Array{"/\xef\xb7\x8f", path, "/\xef\xb7\xb0", "/\xf0\x9f\xbf\xbd"}}});
        startAndWait();
        EXPECT_EQ(items("MenuItems"), (Items{{"Kept", true}}));
        EXPECT_EQ(items("Folders"), (Items{{"/kept", false}}));
        EXPECT_EQ(strings("CustomFolders"),
                  (QStringList{QStringLiteral("/\ufdcf"), QStringLiteral("/\ufdf0"), QStringLiteral("/\U0001fffd")}));
        EXPECT_EQ(strings("DirectoryURLs").size(), 2) << "an address has none of them";
        quit();
        EXPECT_TRUE(waitUntil([&] { return !nameIsOwned(); }));
    }
}

TEST_F(FollowedSettings, AreAnnouncedAlsoWhereTheyHoldWhatTheBusCannotCarry)
{
    startAndWait();
    Announcements announced(connection());
    store({{"arrCustomFoldersUrls", Array{"\xef\xb7\x90", "/x"}}, {"showinSubMenu", true}});
    ASSERT_TRUE(waitUntil([&] { return !announced.isEmpty(); }));
    EXPECT_EQ(announced.take(), (QStringList{QStringLiteral("CustomFolders"), QStringLiteral("ShowInSubmenu")}));
    EXPECT_EQ(strings("CustomFolders"), QStringList{QStringLiteral("/x")});
}
