#include "../chooser/TemporaryFolder.h"
#include "extension/actions/find-duplicate-files/FileDigest.h"
#include "support/Files.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace MenuExtension;
using Duplicates::FileState;
using Result = FileReader::Result;
using Wait = FileReader::Wait;

namespace {

class FileDigest : public testing::Test {
protected:
    Digest whole(const std::string& content)
    {
        const std::string path = make(content);
        FileState state;
        const auto file = m_reader.open(path, state);
        Digest digest;
        EXPECT_EQ(m_reader.readWhole(file.get(), state, Wait::Yes, digest), Result::Read);
        return digest;
    }
    Digest ends(const std::string& content)
    {
        const std::string path = make(content);
        FileState state;
        const auto file = m_reader.open(path, state);
        Digest digest;
        EXPECT_EQ(m_reader.readEnds(file.get(), state, Wait::Yes, digest), Result::Read);
        return digest;
    }
    std::string make(const std::string& content)
    {
        const std::string path = m_folder.path(std::to_string(m_made++));
        Files::write(path, content);
        return path;
    }

    const TemporaryFolder m_folder;
    int m_made = 0;
    std::size_t m_read = 0;
    std::stop_source m_stop;
    const FileReader m_reader{[this](std::size_t bytes) { m_read += bytes; }, m_stop.get_token()};
};

} // namespace

TEST_F(FileDigest, IsTheSameForTheSameBytesAndNoOther)
{
    for (const std::size_t size :
         {std::size_t{1}, std::size_t{4096}, std::size_t{256 * 1024}, std::size_t{700'001}}) {
        std::string content = Files::noise(size);
        const Digest digest = whole(content);
        EXPECT_EQ(whole(content), digest);
        content[size / 2] = static_cast<char>(content[size / 2] ^ 1);
        EXPECT_NE(whole(content), digest) << size;
    }
    EXPECT_EQ(whole({}), whole({}));
    EXPECT_NE(whole({}), whole("x"));
}

TEST_F(FileDigest, IsTheOneThatOtherProgramsPrint)
{
    // As xxh128sum prints it for an empty file.
    EXPECT_EQ(whole({}), (Digest{0x99aa06d3014798d8U, 0x6001c324468d497fU}));
}

TEST_F(FileDigest, TellsTheBeginningAndTheEndOfLargeFiles)
{
    std::string content = Files::noise(300'000);
    const Digest digest = ends(content);
    EXPECT_EQ(ends(content), digest);
    content[150'000] = static_cast<char>(content[150'000] ^ 1);
    EXPECT_EQ(ends(content), digest);
    std::string other = content;
    other.front() = static_cast<char>(other.front() ^ 1);
    EXPECT_NE(ends(other), digest);
    other = content;
    other.back() = static_cast<char>(other.back() ^ 1);
    EXPECT_NE(ends(other), digest);
}

TEST_F(FileDigest, TellsOfAFileThatBecameShorterOrWasWrittenMeanwhile)
{
    for (const std::size_t size : {std::size_t{1000}, std::size_t{700'000}}) {
        const std::string path = make(Files::noise(size));
        FileState state;
        const auto file = m_reader.open(path, state);
        ASSERT_EQ(::truncate(path.c_str(), 10), 0);
        Digest digest;
        EXPECT_EQ(m_reader.readWhole(file.get(), state, Wait::Yes, digest), Result::Changed);
        Files::write(path, std::string(size, 'x'));
        EXPECT_EQ(m_reader.readWhole(file.get(), state, Wait::Yes, digest), Result::Changed);
    }
}

TEST_F(FileDigest, OpensNothingButOrdinaryFiles)
{
    FileState state;
    EXPECT_FALSE(m_reader.open(m_folder.path("none"), state));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_FALSE(m_reader.open(m_folder.path(), state));
    EXPECT_EQ(errno, EISDIR);
    EXPECT_FALSE(m_reader.open(m_folder.link("link", make("x")), state));
    ASSERT_EQ(::mkfifo(m_folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(m_reader.open(m_folder.path("pipe"), state));
}

TEST_F(FileDigest, StopsBetweenTwoBlocks)
{
    const std::string path = make(Files::noise(700'000));
    FileState state;
    const auto file = m_reader.open(path, state);
    m_stop.request_stop();
    Digest digest;
    EXPECT_EQ(m_reader.readWhole(file.get(), state, Wait::Yes, digest), Result::Stopped);
    EXPECT_EQ(m_read, 0);
}
