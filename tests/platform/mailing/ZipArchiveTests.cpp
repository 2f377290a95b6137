#include "platform/linux/mailing/ZipArchive.h"

#include "support/Files.h"

#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace LinuxDesktop;
namespace fs = std::filesystem;

namespace {

/// What complaints begin with.
const std::string program = program_invocation_short_name;

/// Root may read everything; while this lives the process is another user, when it was root, and owns `folder`.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const fs::path& folder)
    {
        if (::geteuid() != 0)
            return;
        constexpr uid_t nobody = 65534;
        EXPECT_EQ(::lchown(folder.c_str(), nobody, nobody), 0);
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            EXPECT_EQ(::lchown(entry.path().c_str(), nobody, nobody), 0);
        EXPECT_EQ(::seteuid(nobody), 0);
    }
    ~OrdinaryUser() { EXPECT_EQ(::seteuid(::getuid()), 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

/// Files cannot grow beyond that many bytes while this lives.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before{};
};

struct ZipArchive : testing::Test {
    ZipArchive() { fs::create_directory(folder()); }

    [[nodiscard]] fs::path base() const { return m_base.path().toStdString(); }
    [[nodiscard]] fs::path folder() const { return base() / "folder"; }
    [[nodiscard]] fs::path archive() const { return base() / "archive.zip"; }

    /// Packs the folder and keeps what is said.
    bool zip()
    {
        testing::internal::CaptureStderr();
        m_failure = zipFolder(folder(), "folder", archive(), m_progress);
        m_errors = testing::internal::GetCapturedStderr();
        return !m_failure;
    }

    /// Takes no room, and hours to pack.
    void makeHugeFile() const
    {
        Files::write(folder() / "huge", "");
        fs::resize_file(folder() / "huge", std::uintmax_t{400} * 1024 * 1024 * 1024);
    }
    void waitForTheFirstBytes() const
    {
        while (m_progress.bytes == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

    /// What another implementation finds in the archive: a line an entry with its name's bytes, the type and rights
    /// of its mode, and the first bytes of its content.
    [[nodiscard]] std::string listing() const
    {
        QProcess python;
        python.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        python.start(QStringLiteral("python3"), {QStringLiteral("-c"), QStringLiteral(R"(
import sys, zipfile
archive = zipfile.ZipFile(sys.argv[1])
assert archive.testzip() is None
for entry in archive.infolist():
    name = entry.filename.encode('utf-8' if entry.flag_bits & 0x800 else 'cp437')
    print(repr(name)[2:-1], oct(entry.external_attr >> 16)[2:], archive.read(entry)[:20].decode('latin-1'))
)"),
                                                 QString::fromStdString(archive().native())});
        EXPECT_TRUE(python.waitForFinished());
        EXPECT_EQ(python.exitCode(), 0);
        return python.readAllStandardOutput().toStdString();
    }

    QTemporaryDir m_base;
    std::string m_errors;
    AttachingProgress m_progress;
    std::optional<AttachingFailure> m_failure;
};

} // namespace

TEST_F(ZipArchive, HoldsFilesFoldersAndLinksUnderTheFoldersName)
{
    fs::create_directories(folder() / "empty folder");
    fs::create_directories(folder() / "in" / "ner");
    Files::write(folder() / "in" / "ner" / "a.txt", "text");
    Files::write(folder() / "in" / "program", "#!/bin/sh");
    fs::permissions(folder() / "in" / "program", fs::perms(0750));
    fs::permissions(folder() / "in" / "ner" / "a.txt", fs::perms(0640));
    Files::write(folder() / "nothing", "");
    fs::permissions(folder() / "nothing", fs::perms(0600));
    for (const auto* name : {".", "empty folder", "in", "in/ner"})
        fs::permissions(folder() / name, fs::perms(0755));
    ASSERT_TRUE(zip());
    EXPECT_EQ(m_errors, "");
    EXPECT_EQ(listing(), "folder/ 40755 \n"
                         "folder/empty folder/ 40755 \n"
                         "folder/in/ 40755 \n"
                         "folder/in/ner/ 40755 \n"
                         "folder/in/ner/a.txt 100640 text\n"
                         "folder/in/program 100750 #!/bin/sh\n"
                         "folder/nothing 100600 \n");
    EXPECT_EQ(fs::status(archive()).permissions(), fs::perms(0600));
}

TEST_F(ZipArchive, StoresLinksAndFollowsNone)
{
    fs::create_directory(base() / "outside");
    Files::write(base() / "outside" / "secret", "secret");
    fs::create_symlink("../outside", folder() / "a folder");
    fs::create_symlink("../outside/secret", folder() / "b file");
    fs::create_symlink("nowhere", folder() / "c nothing");
    fs::create_symlink(".", folder() / "d itself");
    ASSERT_TRUE(zip());
    const std::string found = listing();
    EXPECT_EQ(found.substr(found.find('\n') + 1), "folder/a folder 120777 ../outside\n"
                                                  "folder/b file 120777 ../outside/secret\n"
                                                  "folder/c nothing 120777 nowhere\n"
                                                  "folder/d itself 120777 .\n");
}

TEST_F(ZipArchive, FollowsALinkThatIsTheFolderItself)
{
    fs::remove(folder());
    fs::create_directory(base() / "real");
    Files::write(base() / "real" / "file", "text");
    fs::create_directory_symlink("real", folder());
    ASSERT_TRUE(zip());
    EXPECT_NE(listing().find("folder/file"), std::string::npos);
}

TEST_F(ZipArchive, KeepsNamesAsTheyAre)
{
    Files::write(folder() / "bytes \xff\xfe", "");
    Files::write(folder() / "line\nend", "");
    Files::write(folder() / "text \xc3\xa9\xe2\x82\xac", "");
    ASSERT_TRUE(zip());
    EXPECT_EQ(m_errors, "");
    const std::string found = listing();
    EXPECT_NE(found.find(R"(folder/bytes \xff\xfe )"), std::string::npos) << found;
    EXPECT_NE(found.find(R"(folder/line\nend )"), std::string::npos) << found;
    EXPECT_NE(found.find(R"(folder/text \xc3\xa9\xe2\x82\xac )"), std::string::npos) << found;
}

TEST_F(ZipArchive, HoldsLargeFilesWhole)
{
    const std::string content = Files::noise(5'000'001);
    Files::write(folder() / "large", content);
    ASSERT_TRUE(zip());
    ASSERT_EQ(QProcess::execute(QStringLiteral("python3"),
                                {QStringLiteral("-m"), QStringLiteral("zipfile"), QStringLiteral("-e"),
                                 QString::fromStdString(archive().native()),
                                 QString::fromStdString((base() / "extracted").native())}),
              0);
    EXPECT_TRUE(Files::read(base() / "extracted" / "folder" / "large") == content);
}

TEST_F(ZipArchive, IsNotMadeWithoutWhatCannotBeReadAndSaysWhatThatIs)
{
    Files::write(folder() / "a", "readable");
    Files::write(folder() / "b", "unreadable");
    fs::permissions(folder() / "b", fs::perms::none);
    fs::create_directory(folder() / "c");
    Files::write(folder() / "c" / "hidden", "unreadable");
    fs::create_directory(folder() / "d");
    ASSERT_EQ(::mkfifo((folder() / "d" / "pipe").c_str(), 0600), 0);
    Files::write(folder() / "e", "readable");
    {
        const OrdinaryUser user(base());
        fs::permissions(folder() / "c", fs::perms::none);
        EXPECT_FALSE(zip());
    }
    EXPECT_FALSE(fs::exists(archive()));
    const std::string path = folder().native();
    EXPECT_EQ(m_errors, program + ": cannot pack \"" + path + "/b\": Permission denied\n" + program +
                            ": cannot pack \"" + path + "/c\": Permission denied\n" + program + ": cannot pack \"" +
                            path + "/d/pipe\": it is not a file\n");
    ASSERT_TRUE(m_failure);
    EXPECT_EQ(m_failure->kind, AttachingFailure::Kind::Incomplete);
    EXPECT_EQ(m_failure->leftOutCount, 3U);
    ASSERT_EQ(m_failure->leftOut.size(), 3U);
    EXPECT_EQ(m_failure->leftOut[2].path, "d/pipe");
    EXPECT_EQ(m_failure->leftOut[2].reason, "it is not a file");
}

TEST_F(ZipArchive, NamesTheFirstOfManyThatCannotBePackedAndCountsThemAll)
{
    for (int number = 0; number < 1000; ++number)
        ASSERT_EQ(::mkfifo((folder() / std::to_string(number)).c_str(), 0600), 0);
    EXPECT_FALSE(zip());
    ASSERT_TRUE(m_failure);
    EXPECT_EQ(m_failure->leftOutCount, 1000U);
    EXPECT_EQ(m_failure->leftOut.size(), 4U);
    EXPECT_EQ(std::ranges::count(m_errors, '\n'), 4);
}

TEST_F(ZipArchive, IsNotMadeOfAFileThatBecomesShorterMeanwhile)
{
    makeHugeFile();
    std::thread other([this] {
        waitForTheFirstBytes();
        fs::resize_file(folder() / "huge", 10);
    });
    EXPECT_FALSE(zip());
    other.join();
    ASSERT_TRUE(m_failure);
    EXPECT_EQ(m_failure->kind, AttachingFailure::Kind::Incomplete);
    EXPECT_EQ(m_failure->leftOut.at(0).reason, "it became shorter");
    EXPECT_FALSE(fs::exists(archive()));
}

TEST_F(ZipArchive, OfAnUnreadableFolderIsNotMade)
{
    const OrdinaryUser user(base());
    fs::permissions(folder(), fs::perms::none);
    EXPECT_FALSE(zip());
    EXPECT_EQ(m_errors, program + ": cannot read \"" + folder().native() + "\": Permission denied\n");
    EXPECT_EQ(m_failure->kind, AttachingFailure::Kind::Unreadable);
    EXPECT_FALSE(fs::exists(archive()));
}

TEST_F(ZipArchive, IsNotLeftBehindInPartWhenItCannotBeWritten)
{
    Files::write(folder() / "large", Files::noise(3'000'000));
    {
        const FileSizeLimit limit(1'000'000);
        EXPECT_FALSE(zip());
    }
    EXPECT_EQ(m_errors, program + ": cannot write \"" + archive().native() + "\": File too large\n");
    EXPECT_EQ(m_failure->kind, AttachingFailure::Kind::Unwritable);
    EXPECT_FALSE(fs::exists(archive()));
}

TEST_F(ZipArchive, IsNotLeftBehindInPartWhenItCannotBeWrittenAtTheVeryEnd)
{
    Files::write(folder() / "small", Files::noise(1000));
    {
        const FileSizeLimit limit(500);
        EXPECT_FALSE(zip());
    }
    EXPECT_NE(m_errors.find("cannot write"), std::string::npos);
    EXPECT_FALSE(fs::exists(archive()));
}

TEST_F(ZipArchive, LeavesAnotherFileInItsPlaceAlone)
{
    Files::write(archive(), "another's");
    EXPECT_FALSE(zip());
    EXPECT_EQ(m_failure->reason, "File exists");
    EXPECT_EQ(Files::read(archive()), "another's");
}

TEST_F(ZipArchive, OfWhateverSizeIsGivenUpSoonAndNotLeftBehind)
{
    makeHugeFile();
    std::thread other([this] {
        waitForTheFirstBytes();
        m_progress.cancelled = true;
    });
    EXPECT_FALSE(zip());
    other.join();
    EXPECT_EQ(m_failure->kind, AttachingFailure::Kind::Cancelled);
    EXPECT_EQ(m_errors, "");
    EXPECT_FALSE(fs::exists(archive()));
}

TEST_F(ZipArchive, DoesNotHoldItself)
{
    Files::write(folder() / "file", "text");
    ASSERT_FALSE(zipFolder(folder(), "folder", folder() / "own.zip", m_progress));
    fs::rename(folder() / "own.zip", archive());
    EXPECT_EQ(listing().find("own.zip"), std::string::npos);
}
