#include "extension/companion/SettingsWatch.h"

#include "NoMoreDescriptors.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <poll.h>
#include <string>

using MenuExtension::SettingsWatch;
namespace fs = std::filesystem;

namespace {

struct WatchedFile : testing::Test {
    WatchedFile()
    {
        std::string made = fs::temp_directory_path() / "orvik-watch-XXXXXX";
        if (!::mkdtemp(made.data()))
            throw fs::filesystem_error("mkdtemp", {});
        // Where it lies may itself be reached through links.
        root = fs::canonical(made);
        folder = root / "config" / "settings";
        file = folder / "file";
    }
    ~WatchedFile() override { fs::remove_all(root); }

    void watch() { m_watch.emplace(file); }
    [[nodiscard]] bool isWhole() const { return m_watch->isWhole(); }
    void tryAgain() { m_watch->tryAgain(); }

    /// Whether a change was told since the last question.
    [[nodiscard]] bool tellsChange()
    {
        pollfd readable{m_watch->descriptor(), POLLIN, 0};
        return ::poll(&readable, 1, 0) == 1 && m_watch->takeEvents();
    }

    static void write(const fs::path& path)
    {
        fs::create_directories(path.parent_path());
        std::ofstream(path) << "text";
    }
    static void replace(const fs::path& path)
    {
        write(path.native() + ".new");
        fs::rename(path.native() + ".new", path);
    }

    fs::path root;
    fs::path folder;
    fs::path file;

private:
    std::optional<SettingsWatch> m_watch;
};

} // namespace

TEST_F(WatchedFile, TellsOfWritingReplacingAndRemoving)
{
    write(file);
    watch();
    EXPECT_FALSE(tellsChange());
    write(file);
    EXPECT_TRUE(tellsChange());
    EXPECT_FALSE(tellsChange());
    replace(file);
    EXPECT_TRUE(tellsChange());
    fs::remove(file);
    EXPECT_TRUE(tellsChange());
    write(file);
    EXPECT_TRUE(tellsChange());
}

TEST_F(WatchedFile, IsNotMistakenForItsNeighbours)
{
    write(file);
    watch();
    write(folder / "file.lock");
    replace(folder / "other");
    fs::remove(folder / "other");
    write(root / "config" / "other");
    fs::create_directory(root / "config" / "settings.new");
    EXPECT_FALSE(tellsChange());
}

TEST_F(WatchedFile, IsSeenWhenItAppearsWithAllItsFolders)
{
    watch();
    fs::create_directory(root / "config");
    EXPECT_TRUE(tellsChange());
    fs::create_directory(folder);
    EXPECT_TRUE(tellsChange());
    write(file);
    EXPECT_TRUE(tellsChange());
    replace(file);
    EXPECT_TRUE(tellsChange());
}

TEST_F(WatchedFile, IsSeenAgainAfterItsFoldersWereRemoved)
{
    write(file);
    watch();
    for (const fs::path& removed : {folder, root / "config"}) {
        fs::remove_all(removed);
        EXPECT_TRUE(tellsChange()) << removed;
        write(file);
        EXPECT_TRUE(tellsChange()) << removed;
        replace(file);
        EXPECT_TRUE(tellsChange()) << removed;
    }
}

TEST_F(WatchedFile, IsSeenAgainAlsoWhileSomebodyKeepsTheRemovedOneOpen)
{
    write(file);
    watch();
    const std::ifstream reader(file);
    ASSERT_TRUE(reader.is_open());
    fs::remove(file);
    EXPECT_TRUE(tellsChange());
    // The system does not tell a folder of its end before those in it have gone.
    fs::remove(folder);
    EXPECT_TRUE(tellsChange());
    write(file);
    EXPECT_TRUE(tellsChange());
    replace(file);
    EXPECT_TRUE(tellsChange());
}

TEST_F(WatchedFile, IsAnotherOneWhenAFolderTakesItsFoldersPlace)
{
    write(file);
    write(root / "prepared" / "settings" / "file");
    watch();
    fs::rename(root / "config", root / "away");
    EXPECT_TRUE(tellsChange());
    write(root / "away" / "settings" / "file");
    EXPECT_FALSE(tellsChange());
    fs::rename(root / "prepared", root / "config");
    EXPECT_TRUE(tellsChange());
    replace(file);
    EXPECT_TRUE(tellsChange());
}

TEST_F(WatchedFile, IsFollowedThroughALinkInItsPlace)
{
    const fs::path target = root / "dotfiles" / "target";
    write(target);
    fs::create_directories(folder);
    fs::create_symlink("../../dotfiles/target", file);
    watch();
    replace(target);
    EXPECT_TRUE(tellsChange());
    write(target);
    EXPECT_TRUE(tellsChange());
    fs::remove_all(root / "dotfiles");
    EXPECT_TRUE(tellsChange());
    write(target);
    EXPECT_TRUE(tellsChange());
    replace(file);
    EXPECT_TRUE(tellsChange());
    replace(target);
    EXPECT_FALSE(tellsChange()) << "nothing leads there any more";
}

TEST_F(WatchedFile, IsFollowedThroughLinkedFolders)
{
    write(root / "one" / "settings" / "file");
    write(root / "other" / "settings" / "file");
    fs::create_directory_symlink(root / "one", root / "config");
    watch();
    replace(root / "one" / "settings" / "file");
    EXPECT_TRUE(tellsChange());

    fs::create_directory_symlink(root / "other", root / "link.new");
    fs::rename(root / "link.new", root / "config");
    EXPECT_TRUE(tellsChange());
    replace(root / "other" / "settings" / "file");
    EXPECT_TRUE(tellsChange());
}

TEST_F(WatchedFile, MayBeALinkToItself)
{
    fs::create_directories(folder);
    fs::create_symlink("file", file);
    watch();
    fs::remove(file);
    EXPECT_TRUE(tellsChange());
}

TEST_F(WatchedFile, IsSeenWhenItMayBeReadAgain)
{
    write(file);
    watch();
    fs::permissions(file, fs::perms::none);
    EXPECT_TRUE(tellsChange());
    fs::permissions(file, fs::perms::owner_all);
    EXPECT_TRUE(tellsChange());
    fs::permissions(folder, fs::perms::none);
    EXPECT_TRUE(tellsChange());
    fs::permissions(folder, fs::perms::owner_all);
    EXPECT_TRUE(tellsChange());
}

TEST_F(WatchedFile, IsWatchedOnceTheSystemHasAWatchToGive)
{
    write(file);
    testing::internal::CaptureStderr();
    {
        const NoMoreDescriptors none;
        watch();
        EXPECT_FALSE(isWhole());
        tryAgain();
        EXPECT_FALSE(isWhole());
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              std::string(program_invocation_short_name) +
                  ": changes of the settings cannot be followed: Too many open files; they are looked "
                  "for now and then\n");
    replace(file);
    EXPECT_FALSE(tellsChange());

    testing::internal::CaptureStderr();
    tryAgain();
    EXPECT_TRUE(isWhole());
    tryAgain();
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              std::string(program_invocation_short_name) + ": changes of the settings are followed again\n");
    replace(file);
    EXPECT_TRUE(tellsChange());
}
