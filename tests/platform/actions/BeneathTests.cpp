#include "extension/actions/support/Beneath.h"
#include "support/Files.h"

#include <QTemporaryDir>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using LinuxDesktop::FileDescriptor;

enum class Way { Kernel, Walking };

void PrintTo(Way way, std::ostream* stream)
{
    *stream << (way == Way::Kernel ? "kernel" : "walking");
}

class Beneath : public testing::TestWithParam<Way> {
protected:
    Beneath()
    {
        fs::create_directories(m_listed / "one/two");
        fs::create_directories(m_root / "outside");
        Files::write(m_listed / "one/file", "inside");
        Files::write(m_root / "outside/file", "outside");
        fs::create_directory_symlink(m_root / "outside", m_listed / "absolute");
        fs::create_directory_symlink("../outside", m_listed / "relative");
        fs::create_symlink("../../outside/file", m_listed / "one/link");
    }

    [[nodiscard]] static FileDescriptor open(const std::string& folder, const std::string& path, int flags)
    {
        return GetParam() == Way::Kernel ? MenuExtension::openBeneath(folder, path, flags)
                                         : MenuExtension::openBeneathByWalking(folder, path, flags);
    }
    /// The error of a try to open; 0 where there was none.
    [[nodiscard]] int errorOf(const fs::path& path, int flags = O_RDONLY) const
    {
        return open(m_listed, path.native(), flags) ? 0 : errno;
    }
    [[nodiscard]] bool leadsOut(const fs::path& path, int flags = O_RDONLY) const
    {
        const int error = errorOf(path, flags);
        return error == EXDEV || error == ELOOP || error == ENOTDIR;
    }
    [[nodiscard]] static ino_t inodeOf(const FileDescriptor& opened)
    {
        struct stat status = {};
        return ::fstat(opened.get(), &status) == 0 ? status.st_ino : 0;
    }
    [[nodiscard]] static ino_t inodeOf(const fs::path& path)
    {
        struct stat status = {};
        return ::stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
    }

    QTemporaryDir m_folder;
    const fs::path m_root = m_folder.path().toStdString();
    const fs::path m_listed = m_root / "listed";
};

TEST_P(Beneath, TheFolderItselfAndWhatLiesInItAreOpened)
{
    for (const fs::path& path : {m_listed, m_listed / "one", m_listed / "one/two", m_listed / "one/file"}) {
        SCOPED_TRACE(path);
        EXPECT_EQ(inodeOf(open(m_listed, path.native(), O_PATH)), inodeOf(path));
        EXPECT_EQ(inodeOf(open(m_listed, path.native(), O_RDONLY)), inodeOf(path));
        EXPECT_EQ(inodeOf(open(m_listed.native() + '/', path.native() + "//", O_RDONLY)), inodeOf(path));
    }
}

TEST_P(Beneath, TheRootContainsEverything)
{
    EXPECT_EQ(inodeOf(open("", (m_listed / "one").native(), O_PATH)), inodeOf(m_listed / "one"));
    EXPECT_EQ(inodeOf(open("", "/", O_PATH)), inodeOf(fs::path("/")));
}

TEST_P(Beneath, ALinkThatLeadsOutIsNotFollowed)
{
    for (const int flags : {O_RDONLY, O_PATH, O_PATH | O_DIRECTORY}) {
        for (const char* name : {"absolute", "absolute/file", "relative", "relative/file", "one/link"}) {
            SCOPED_TRACE(name);
            EXPECT_TRUE(leadsOut(m_listed / name, flags)) << errorOf(m_listed / name, flags);
        }
    }
}

TEST_P(Beneath, TheFolderAboveIsNotReached)
{
    EXPECT_TRUE(leadsOut(m_listed / "../outside/file"));
    EXPECT_TRUE(leadsOut(m_listed / "one/../../outside"));
}

TEST_P(Beneath, WhatIsMissingIsSaidToBe)
{
    EXPECT_EQ(errorOf(m_listed / "none"), ENOENT);
    EXPECT_EQ(errorOf(m_listed / "none/file"), ENOENT);
    EXPECT_EQ(errorOf(m_listed / "one/file/under"), ENOTDIR);
    fs::remove_all(m_listed);
    EXPECT_EQ(errorOf(m_listed), ENOENT);
}

INSTANTIATE_TEST_SUITE_P(Way, Beneath, testing::Values(Way::Kernel, Way::Walking));

TEST(BeneathByKernel, ALinkThatStaysInsideIsFollowed)
{
    const QTemporaryDir folder;
    const fs::path listed = folder.path().toStdString();
    fs::create_directories(listed / "one");
    Files::write(listed / "one/file", {});
    fs::create_directory_symlink("one", listed / "link");
    EXPECT_TRUE(MenuExtension::openBeneath(listed, (listed / "link/file").native(), O_RDONLY));
}

} // namespace
