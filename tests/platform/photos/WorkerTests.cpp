#include "extension/actions/photos/Worker.h"

#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <unistd.h>

namespace {

using namespace MenuExtension::Photos;
using namespace std::chrono_literals;

const std::string program = ORVIK_WORKER;

TEST(Worker, DoesOneJobAfterTheOther)
{
    Worker worker(program, {});
    const auto first = worker.ask("process", {}, {});
    const auto second = worker.ask("process", {}, {});
    EXPECT_FALSE(first.fault);
    EXPECT_FALSE(first.bytes.empty());
    EXPECT_EQ(first.bytes, second.bytes) << "one process did both";
}

TEST(Worker, IsGivenOpenFilesOnly)
{
    Worker worker(program, {});
    std::array<char, 32> name{"/tmp/orvik-worker-XXXXXX"};
    const LinuxDesktop::FileDescriptor file(::mkostemp(name.data(), O_CLOEXEC));
    ASSERT_TRUE(bool(file));
    ::unlink(name.data());
    ASSERT_EQ(::write(file.get(), "what it holds", 13), 13);
    const std::array files{file.get()};
    EXPECT_EQ(worker.ask("read", files, {}).bytes, "what it holds");
    // The caller's file stays open.
    EXPECT_GE(::fcntl(file.get(), F_GETFD), 0);
}

TEST(Worker, AnswersMayBeLarge)
{
    Worker worker(program, {});
    const std::string large(std::size_t{8} << 20U, 'x');
    EXPECT_EQ(worker.ask(large, {}, {}).bytes, large);
}

TEST(Worker, OneThatCrashesCostsItsJobAlone)
{
    Worker worker(program, {});
    const auto before = worker.ask("process", {}, {});
    EXPECT_EQ(worker.ask("abort", {}, {}).fault, Fault::Died);
    const auto after = worker.ask("process", {}, {});
    EXPECT_FALSE(after.fault);
    EXPECT_NE(before.bytes, after.bytes);
}

TEST(Worker, OneThatIsKilledBetweenJobsCostsTheNextAtMost)
{
    Worker worker(program, {});
    ::kill(std::stoi(worker.ask("process", {}, {}).bytes), SIGKILL);
    static_cast<void>(worker.ask("process", {}, {}));
    EXPECT_FALSE(worker.ask("process", {}, {}).fault);
}

TEST(Worker, TakesNoMoreTimeOfTheProcessorThanItMay)
{
    Worker worker(program, {.processor = 1s, .patience = 60s});
    EXPECT_EQ(worker.ask("use the processor", {}, {}).fault, Fault::TookTooLong);
    // The next job has its own time.
    EXPECT_FALSE(worker.ask("process", {}, {}).fault);
}

TEST(Worker, IsWaitedForNoLongerThanPatienceLasts)
{
    Worker worker(program, {.patience = 1s});
    EXPECT_EQ(worker.ask("sleep", {}, {}).fault, Fault::TookTooLong);
    EXPECT_FALSE(worker.ask("process", {}, {}).fault);
}

// A sanitizer takes more memory than any limit.
#ifndef ORVIK_SANITIZED
TEST(Worker, TakesNoMoreMemoryThanItMay)
{
    Worker worker(program, {.memory = std::uint64_t{1} << 30U});
    EXPECT_EQ(worker.ask("take a little memory", {}, {}).bytes, "taken");
    EXPECT_EQ(worker.ask("take much memory", {}, {}).fault, Fault::Died);
    EXPECT_FALSE(worker.ask("process", {}, {}).fault);
}
#endif

TEST(Worker, AStopEndsTheWaitingAndTheProcess)
{
    Worker worker(program, {});
    const pid_t process = std::stoi(worker.ask("process", {}, {}).bytes);
    std::stop_source stop;
    const std::jthread stopper([&] {
        std::this_thread::sleep_for(50ms);
        stop.request_stop();
    });
    EXPECT_EQ(worker.ask("sleep", {}, stop.get_token()).fault, Fault::Stopped);
    EXPECT_NE(::kill(process, 0), 0);
    EXPECT_EQ(worker.ask("process", {}, stop.get_token()).fault, Fault::Stopped);
    EXPECT_FALSE(worker.ask("process", {}, {}).fault);
}

TEST(Worker, EndsWithItsOwner)
{
    pid_t process = 0;
    {
        Worker worker(program, {});
        process = std::stoi(worker.ask("process", {}, {}).bytes);
        EXPECT_EQ(::kill(process, 0), 0);
    }
    EXPECT_NE(::kill(process, 0), 0);
}

TEST(Worker, WhatIsNotThereCannotBeStarted)
{
    Worker worker("/nonexistent/worker", {});
    EXPECT_EQ(worker.ask("process", {}, {}).fault, Fault::NotStarted);
}

TEST(Worker, WhatEndsAtOnceHasNotBeenStarted)
{
    Worker worker("/bin/false", {});
    EXPECT_EQ(worker.ask("process", {}, {}).fault, Fault::NotStarted);
}

TEST(Worker, NonsenseIsNoAnswer)
{
    Worker worker(program, {});
    EXPECT_EQ(worker.ask("say nonsense", {}, {}).fault, Fault::Died);
    EXPECT_EQ(worker.ask("hello", {}, {}).bytes, "hello");
}

} // namespace
