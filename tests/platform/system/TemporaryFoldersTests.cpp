#include "platform/linux/system/TemporaryFolders.h"

#include "support/Files.h"

#include <QTemporaryDir>
#include <cerrno>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace LinuxDesktop;
namespace fs = std::filesystem;

namespace {

struct RuntimeFolder : testing::Test {
    RuntimeFolder() { qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8()); }

    [[nodiscard]] fs::path path() const { return m_folder.path().toStdString(); }
    [[nodiscard]] std::ptrdiff_t entries() const
    {
        return std::distance(fs::directory_iterator(path()), fs::directory_iterator());
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RuntimeFolder, GetsFoldersForTheUserAloneThatGoInTheEnd)
{
    {
        TemporaryFolders folders;
        const auto first = folders.make();
        const auto second = folders.make();
        ASSERT_TRUE(first && second);
        EXPECT_NE(*first, *second);
        EXPECT_TRUE(first->starts_with(path().native() + "/"));
        const auto userOnly = fs::perms::owner_all;
        EXPECT_EQ(fs::status(*first).permissions(), userOnly);
        EXPECT_EQ(fs::status(fs::path(*first).parent_path()).permissions(), userOnly);
        Files::write(*first + "/file", "content");
    }
    EXPECT_EQ(entries(), 0);
}

TEST_F(RuntimeFolder, StaysUntouchedWhenNothingIsMade)
{
    const TemporaryFolders folders;
    EXPECT_EQ(entries(), 0);
}

TEST_F(RuntimeFolder, LosesWhatAKilledProcessLeft)
{
    const pid_t child = ::fork();
    if (child == 0) {
        TemporaryFolders folders;
        if (const auto folder = folders.make())
            Files::write(*folder + "/file", "content");
        ::raise(SIGKILL);
    }
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    ASSERT_EQ(entries(), 1);
    TemporaryFolders::removeLeftovers();
    EXPECT_EQ(entries(), 0);
}

TEST_F(RuntimeFolder, KeepsWhatARunningProcessHas)
{
    TemporaryFolders running;
    const auto folder = running.make();
    ASSERT_TRUE(folder);
    TemporaryFolders::removeLeftovers();
    EXPECT_TRUE(fs::exists(*folder));
}

TEST_F(RuntimeFolder, KeepsWhatIsNotOurs)
{
    fs::create_directory(path() / "another-program");
    fs::create_directory(path() / "target");
    fs::create_symlink("target", path() / "orvik-menu-mail-linked");
    Files::write(path() / "orvik-menu-mail-file", "content");
    TemporaryFolders::removeLeftovers();
    EXPECT_EQ(entries(), 4);
}

TEST_F(RuntimeFolder, UnsetMeansTheFolderForTemporaryFiles)
{
    qunsetenv("XDG_RUNTIME_DIR");
    qputenv("TMPDIR", m_folder.path().toUtf8());
    TemporaryFolders folders;
    const auto folder = folders.make();
    ASSERT_TRUE(folder);
    EXPECT_TRUE(folder->starts_with(path().native() + "/"));
}

TEST_F(RuntimeFolder, ThatIsMissingIsComplainedOf)
{
    qputenv("XDG_RUNTIME_DIR", (path() / "missing\nfolder").c_str());
    TemporaryFolders folders;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(folders.make());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), std::string(program_invocation_short_name) +
                                                          ": cannot make a folder in \"" + path().native() +
                                                          "/missing\\x0afolder\": No such file or directory\n");
}
