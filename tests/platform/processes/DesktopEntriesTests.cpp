#include "platform/linux/processes/DesktopEntries.h"

#include "DataFolders.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace LinuxDesktop;
namespace fs = std::filesystem;
using NS::ActivationPolicy;

namespace {

struct Entries : testing::Test {
    ActivationPolicy policyOf(const std::string& identifier)
    {
        if (!m_entries)
            m_entries.emplace();
        return m_entries->policiesOf(std::vector{identifier}).at(0);
    }

    DataFolders m_data;
    /// Made when first asked, so a test can write entries and the environment before.
    std::optional<DesktopEntries> m_entries;
};

/// Gives up the rights that let root read every file, for the thread.
class WithoutRootsRights {
public:
    WithoutRootsRights() { m_changed = ::geteuid() == 0 && ::seteuid(65534) == 0; }
    ~WithoutRootsRights()
    {
        if (m_changed && ::seteuid(0) != 0)
            std::abort();
    }
    WithoutRootsRights(const WithoutRootsRights&) = delete;
    WithoutRootsRights& operator=(const WithoutRootsRights&) = delete;

private:
    bool m_changed = false;
};

} // namespace

TEST_F(Entries, DecideWhateverTheCaseOfTheIdentifier)
{
    m_data.write("home/applications/org.Example.Regular.desktop", "");
    m_data.write("home/applications/org.example.accessory.desktop", "NoDisplay=true\n");
    m_data.write("home/applications/org.example.prohibited.desktop", "Hidden=true\n");
    EXPECT_EQ(policyOf("org.example.regular"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("ORG.EXAMPLE.REGULAR"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("org.example.Accessory"), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("org.example.Prohibited"), ActivationPolicy::Prohibited);
    EXPECT_EQ(policyOf("org.example.unknown"), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("org.example.regular.desktop"), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf(""), ActivationPolicy::Accessory);
}

TEST_F(Entries, AnswerInTheOrderOfTheQuestion)
{
    m_data.write("home/applications/a.b.desktop", "");
    m_data.write("home/applications/a.c.desktop", "Hidden=true\n");
    const std::vector<std::string> identifiers{"a.c", "a.x", "a.b", "a.c"};
    EXPECT_EQ(DesktopEntries().policiesOf(identifiers),
              (std::vector{ActivationPolicy::Prohibited, ActivationPolicy::Accessory, ActivationPolicy::Regular,
                           ActivationPolicy::Prohibited}));
}

TEST_F(Entries, OfTheFirstFolderCount)
{
    m_data.write("system/applications/a.b.desktop", "");
    m_data.write("local/applications/a.b.desktop", "NoDisplay=true\n");
    m_data.write("home/applications/A.B.desktop", "Hidden=true\n");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Prohibited);
    fs::remove(m_data.path("home/applications/A.B.desktop"));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Accessory);
    fs::remove(m_data.path("local/applications/a.b.desktop"));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
}

TEST_F(Entries, AreInTheStandardFoldersWhereTheEnvironmentNamesNone)
{
    qunsetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_DIRS", "");
    qputenv("HOME", m_data.path("someone").c_str());
    m_data.write("someone/.local/share/applications/a.b.desktop", "");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
}

TEST_F(Entries, InSubFoldersAreNamedByTheirWay)
{
    m_data.write("system/applications/kde/org.kde.A.desktop", "");
    m_data.write("system/applications/one/two/x.desktop", "");
    EXPECT_EQ(policyOf("kde-org.kde.a"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("one-two-x"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("org.kde.A"), ActivationPolicy::Accessory);
}

TEST_F(Entries, ThatCannotBeReadOrAreNoneArePassedOver)
{
    fs::create_directories(m_data.path("home/applications/a.folder.desktop"));
    Files::write(m_data.path("home/applications/a.garbage.desktop"), "\177ELF, or so");
    Files::write(m_data.path("home/applications/a.empty.desktop"), "");
    fs::create_symlink("nowhere", m_data.path("home/applications/a.dangling.desktop"));
    fs::create_symlink("a.loop.desktop", m_data.path("home/applications/a.loop.desktop"));
    ASSERT_EQ(::mkfifo(m_data.path("home/applications/a.pipe.desktop").c_str(), 0600), 0);
    for (const std::string name : {"a.folder", "a.garbage", "a.empty", "a.dangling", "a.loop", "a.pipe"}) {
        EXPECT_EQ(policyOf(name), ActivationPolicy::Accessory) << name;
        m_data.write("system/applications/" + name + ".desktop", "");
        EXPECT_EQ(policyOf(name), ActivationPolicy::Regular) << name << ", of the next folder";
    }
}

TEST_F(Entries, ThatMayNotBeReadArePassedOverUntilTheyMay)
{
    m_data.write("home/applications/a.b.desktop", "Hidden=true\n");
    m_data.write("system/applications/a.b.desktop", "");
    fs::permissions(m_data.path(""), fs::perms::all);
    fs::permissions(m_data.path("home/applications/a.b.desktop"), fs::perms::none);
    {
        const WithoutRootsRights reader;
        EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
    }
    fs::permissions(m_data.path("home/applications/a.b.desktop"), fs::perms::owner_all);
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Prohibited);
}

TEST_F(Entries, AreReadUpToAMebibyte)
{
    const std::string comment = "#" + std::string(1023, 'x') + "\n";
    std::string filler;
    while (filler.size() < 1'000'000)
        filler += comment;
    m_data.write("home/applications/a.within.desktop", filler + "Hidden=true\n");
    m_data.write("home/applications/a.beyond.desktop", filler + filler + "Hidden=true\n");
    EXPECT_EQ(policyOf("a.within"), ActivationPolicy::Prohibited);
    EXPECT_EQ(policyOf("a.beyond"), ActivationPolicy::Regular);
}

TEST_F(Entries, KnowTheCurrentDesktop)
{
    qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    m_data.write("home/applications/a.gnome.desktop", "OnlyShowIn=GNOME;\n");
    m_data.write("home/applications/a.kde.desktop", "OnlyShowIn=KDE;\n");
    EXPECT_EQ(policyOf("a.gnome"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("a.kde"), ActivationPolicy::Accessory);
}

TEST_F(Entries, FollowEveryChange)
{
    const std::string entry = "home/applications/a.b.desktop";
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Accessory);
    m_data.write(entry, "");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular) << "the folder came after the first question";
    m_data.write(entry, "Hidden=true\n");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Prohibited) << "written in its place";
    m_data.write("home/applications/new", "NoDisplay=true\n");
    fs::rename(m_data.path("home/applications/new"), m_data.path(entry));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Accessory) << "replaced";
    m_data.write(entry, "");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
    fs::remove(m_data.path(entry));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Accessory) << "removed";
    m_data.write("home/applications/sub/c.desktop", "");
    EXPECT_EQ(policyOf("sub-c"), ActivationPolicy::Regular) << "a new sub-folder";
    m_data.write("home/applications/sub/c.desktop", "Hidden=true\n");
    EXPECT_EQ(policyOf("sub-c"), ActivationPolicy::Prohibited) << "in the new sub-folder";
}

TEST_F(Entries, FollowFoldersThatAreReplacedOrMoved)
{
    m_data.write("home/applications/a.b.desktop", "");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
    fs::rename(m_data.path("home"), m_data.path("elsewhere"));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Accessory);
    m_data.write("home/applications/a.b.desktop", "Hidden=true\n");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Prohibited);
    fs::remove_all(m_data.path("home"));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Accessory);
    fs::rename(m_data.path("elsewhere"), m_data.path("home"));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
}

TEST_F(Entries, FollowWhatLinksLeadTo)
{
    m_data.write("store/one", "");
    m_data.write("store/two", "Hidden=true\n");
    m_data.write("store/folder/x.desktop", "");
    fs::create_directories(m_data.path("home/applications"));
    fs::create_symlink(m_data.path("store/current"), m_data.path("home/applications/a.b.desktop"));
    fs::create_symlink(m_data.path("store/later"), m_data.path("home/applications/sub"));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("sub-x"), ActivationPolicy::Accessory);

    fs::create_symlink("one", m_data.path("store/current"));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
    fs::remove(m_data.path("store/current"));
    fs::create_symlink("two", m_data.path("store/current"));
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Prohibited);
    m_data.write("store/two", "NoDisplay=true\n");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Accessory);

    fs::create_symlink("folder", m_data.path("store/later"));
    EXPECT_EQ(policyOf("sub-x"), ActivationPolicy::Regular);
    m_data.write("store/folder/x.desktop", "Hidden=true\n");
    EXPECT_EQ(policyOf("sub-x"), ActivationPolicy::Prohibited);
}

TEST_F(Entries, EndInLoopsOfLinks)
{
    m_data.write("home/applications/one/x.desktop", "");
    m_data.write("home/applications/two/y.desktop", "");
    fs::create_directory_symlink(".", m_data.path("home/applications/same"));
    fs::create_directory_symlink("../two", m_data.path("home/applications/one/other"));
    fs::create_directory_symlink("../one", m_data.path("home/applications/two/other"));
    EXPECT_EQ(policyOf("one-x"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("one-other-y"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("two-other-x"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("one-other-other-x"), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("same-one-x"), ActivationPolicy::Accessory);
}

TEST_F(Entries, EndInATangleOfLinks)
{
    // Each folder leads to all the others, which is more ways than could ever be walked.
    constexpr int folders = 12;
    const auto folder = [this](int index) { return m_data.path("home/applications/" + std::to_string(index)); };
    for (int index = 0; index < folders; ++index)
        fs::create_directories(folder(index));
    for (int from = 0; from < folders; ++from)
        for (int to = 0; to < folders; ++to)
            fs::create_directory_symlink(folder(to), folder(from) + "/" + std::to_string(to));
    m_data.write("home/applications/a.b.desktop", "");
    m_data.write("system/applications/c.d.desktop", "");
    EXPECT_EQ(policyOf("c.d"), ActivationPolicy::Regular);
}

TEST_F(Entries, AreNotReadAgainWhileNothingChangedInTheirFolders)
{
    const std::string entry = m_data.path("home/applications/a.b.desktop");
    m_data.write("home/applications/a.b.desktop", "");
    ASSERT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
    fs::create_hard_link(entry, m_data.path("the same file"));
    ASSERT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
    m_data.write("the same file", "Hidden=true\n");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Regular);
    m_data.write("home/applications/other.desktop", "");
    EXPECT_EQ(policyOf("a.b"), ActivationPolicy::Prohibited);
}

TEST_F(Entries, AnswerSeveralThreadsWhileTheyChange)
{
    m_data.write("home/applications/a.always.desktop", "");
    DesktopEntries entries;
    const std::vector<std::string> identifiers{"a.always", "a.sometimes"};
    const auto ask = [&] {
        for (int round = 0; round < 500; ++round)
            if (entries.policiesOf(identifiers).front() != ActivationPolicy::Regular)
                return false;
        return true;
    };
    bool firstRight = false;
    bool secondRight = false;
    std::thread first([&] { firstRight = ask(); });
    std::thread second([&] { secondRight = ask(); });
    for (int round = 0; round < 200; ++round) {
        m_data.write("home/applications/a.sometimes.desktop", round % 2 == 0 ? "" : "Hidden=true\n");
        fs::remove(m_data.path("home/applications/a.sometimes.desktop"));
    }
    first.join();
    second.join();
    EXPECT_TRUE(firstRight);
    EXPECT_TRUE(secondRight);
}
