#include "platform/linux/chooser/FileKinds.h"

#include "support/Files.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <unistd.h>

namespace {

using namespace LinuxDesktop;
using namespace std::chrono_literals;

constexpr auto patience = 50ms;
const std::string dead = "/net/gone";
const std::string alive = "/net/there";

std::optional<FileKind> recallNothing(const std::string&)
{
    return std::nullopt;
}

/// Says that the living path is a file. Says nothing about the dead one until it is revived, and then that it is
/// missing.
class Server {
public:
    [[nodiscard]] FileKinds::LookUp lookUp()
    {
        return [revived = m_revived.get_future().share(), questions = m_questions](const std::string& path) {
            ++*questions;
            if (path == alive)
                return FileKind::Other;
            revived.wait();
            return FileKind::Missing;
        };
    }

    void revive() { m_revived.set_value(); }
    [[nodiscard]] int questions() const { return *m_questions; }

private:
    std::promise<void> m_revived;
    std::shared_ptr<std::atomic<int>> m_questions = std::make_shared<std::atomic<int>>(0);
};

class FilesOfEachKind : public testing::Test {
protected:
    FilesOfEachKind()
    {
        std::filesystem::create_directory(m_folder);
        std::filesystem::create_directory_symlink(m_folder, m_folder / "link");
        std::filesystem::create_symlink("nowhere", m_folder / "broken");
        Files::write(m_folder / "file", "text");
    }
    ~FilesOfEachKind() override { std::filesystem::remove_all(m_folder); }

    void expectKinds(FileKinds& kinds) const
    {
        EXPECT_EQ(kinds.kindOf(m_folder), FileKind::Folder);
        EXPECT_EQ(kinds.kindOf(m_folder / "link"), FileKind::Folder);
        EXPECT_EQ(kinds.kindOf(m_folder / "broken"), FileKind::Missing);
        EXPECT_EQ(kinds.kindOf(m_folder / "file"), FileKind::Other);
        EXPECT_EQ(kinds.kindOf(m_folder / "absent"), FileKind::Missing);
        EXPECT_EQ(kinds.kindOf(m_folder / "file" / "below"), FileKind::Missing);
    }

    const std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() / ("orvik-file-kinds-" + std::to_string(::getpid()));
};

TEST_F(FilesOfEachKind, AreTold)
{
    FileKinds kinds;
    expectKinds(kinds);
    // Once more, now that the kernel has seen them.
    expectKinds(kinds);
}

TEST_F(FilesOfEachKind, AreToldWhereTheKernelRecallsNothing)
{
    FileKinds kinds(recallNothing, lookUpFileKind, 1min);
    expectKinds(kinds);
}

TEST(FileKinds, WhatIsRecalledIsNotLookedUp)
{
    Server server;
    FileKinds kinds([](const std::string&) { return FileKind::Missing; }, server.lookUp(), patience);

    EXPECT_EQ(kinds.kindOf(alive), FileKind::Missing);
    EXPECT_EQ(server.questions(), 0);
}

TEST(FileKinds, APathWithoutAnAnswerPassesForAFolderAfterTheWait)
{
    Server server;
    FileKinds kinds(recallNothing, server.lookUp(), patience);
    const auto begin = std::chrono::steady_clock::now();

    EXPECT_EQ(kinds.kindOf(dead), FileKind::Folder);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, patience);
    server.revive();
}

TEST(FileKinds, NothingElseIsAskedWhileAnAnswerIsOutstanding)
{
    Server server;
    FileKinds kinds(recallNothing, server.lookUp(), patience);
    EXPECT_EQ(kinds.kindOf(dead), FileKind::Folder);

    EXPECT_EQ(kinds.kindOf(alive), FileKind::Folder);
    EXPECT_LE(server.questions(), 1);
    server.revive();
}

TEST(FileKinds, ALateAnswerIsNotTakenForThatOfAnotherPath)
{
    Server server;
    FileKinds kinds(recallNothing, server.lookUp(), patience);
    EXPECT_EQ(kinds.kindOf(dead), FileKind::Folder);
    server.revive();

    // A folder until the late answer has come in.
    FileKind kind = FileKind::Folder;
    for (int tries = 0; tries < 1000 && kind == FileKind::Folder; ++tries) {
        std::this_thread::sleep_for(10ms);
        kind = kinds.kindOf(alive);
    }
    EXPECT_EQ(kind, FileKind::Other);
}

TEST(FileKinds, TheEndDoesNotWaitForAnOutstandingAnswer)
{
    Server server;
    {
        FileKinds kinds(recallNothing, server.lookUp(), patience);
        EXPECT_EQ(kinds.kindOf(dead), FileKind::Folder);
    }
    server.revive();
}

} // namespace
