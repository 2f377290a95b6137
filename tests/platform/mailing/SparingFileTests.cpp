#include "platform/linux/mailing/SparingFile.h"

#include "support/Files.h"

#include <QTemporaryDir>

#include <cerrno>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <sys/wait.h>

using namespace LinuxDesktop;
namespace fs = std::filesystem;

namespace {

constexpr std::size_t mebibyte = 1024 * 1024;
constexpr int couldNotMount = 77;

struct SparingFileTest : testing::Test {
    [[nodiscard]] fs::path folder() const { return m_folder.path().toStdString(); }
    [[nodiscard]] std::string path() const { return folder() / "file"; }

    /// Runs `holds` in a child, for which a disk of ten MiB lies on the folder.
    template<typename Check>
    void onASmallDisk(Check holds) const
    {
        const pid_t child = ::fork();
        if (child == 0) {
            const bool apart = ::unshare(CLONE_NEWNS) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0;
            if (!apart || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                ::mount("tmpfs", folder().c_str(), "tmpfs", 0, "size=10m") != 0)
                std::_Exit(couldNotMount);
            std::_Exit(holds() ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        ASSERT_NE(WEXITSTATUS(status), couldNotMount);
        EXPECT_EQ(WEXITSTATUS(status), 0);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SparingFileTest, HoldsWhatIsWrittenForTheUserAlone)
{
    SparingFile file(path());
    file.write("some ", 5);
    file.write("text", 4);
    ASSERT_TRUE(file.close());
    EXPECT_EQ(Files::read(path()), "some text");
    EXPECT_EQ(fs::status(path()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(SparingFileTest, GoesWhenItIsNotFinished)
{
    {
        SparingFile file(path());
        file.write("text", 4);
        EXPECT_TRUE(fs::exists(path()));
    }
    EXPECT_FALSE(fs::exists(path()));
}

TEST_F(SparingFileTest, LeavesATenthOfASmallDiskFree)
{
    onASmallDisk([this] {
        SparingFile file(path());
        const std::string part(mebibyte, 'x');
        for (int written = 0; written < 12; ++written)
            file.write(part.data(), part.size());
        struct statvfs disk = {};
        return file.error() == ENOSPC && !file.close() && ::statvfs(folder().c_str(), &disk) == 0 &&
               disk.f_bavail * disk.f_frsize >= mebibyte && disk.f_bavail * disk.f_frsize < 3 * mebibyte;
    });
}

TEST_F(SparingFileTest, FitsOnASmallDiskThatHasTheRoom)
{
    onASmallDisk([this] {
        SparingFile file(path());
        const std::string content(8 * mebibyte, 'x');
        file.write(content.data(), content.size());
        return file.close();
    });
}
