#include "extension/actions/photos/Message.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace MenuExtension::Photos;
using LinuxDesktop::FileDescriptor;
using namespace std::chrono_literals;

class MessageTest : public testing::Test {
protected:
    MessageTest()
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
        m_one = FileDescriptor(ends[0]);
        m_other = FileDescriptor(ends[1]);
    }

    static Deadline soon() { return std::chrono::steady_clock::now() + 100ms; }

    void writePlain(const std::string& bytes)
    {
        EXPECT_EQ(::write(m_one.get(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    static std::string lengthOf(std::uint32_t length)
    {
        std::string bytes(sizeof(length), '\0');
        std::memcpy(bytes.data(), &length, sizeof(length));
        return bytes;
    }

    FileDescriptor m_one;
    FileDescriptor m_other;
};

TEST_F(MessageTest, AnEmptyOneIsOne)
{
    EXPECT_EQ(send(m_one.get(), {}, {}, Deadline::max()), Sent::Yes);
    const auto received = receive(m_other.get(), Deadline::max());
    ASSERT_TRUE(received.message);
    EXPECT_EQ(received.message->bytes, "");
}

TEST_F(MessageTest, BytesAndFilesComeTogetherAndInOrder)
{
    const std::array files{STDIN_FILENO, STDERR_FILENO};
    const std::string first("a\0b", 3);
    EXPECT_EQ(send(m_one.get(), first, files, Deadline::max()), Sent::Yes);
    EXPECT_EQ(send(m_one.get(), "second", {}, Deadline::max()), Sent::Yes);
    auto received = receive(m_other.get(), Deadline::max());
    ASSERT_TRUE(received.message);
    EXPECT_EQ(received.message->bytes, first);
    EXPECT_EQ(received.message->files.size(), 2U);
    received = receive(m_other.get(), Deadline::max());
    ASSERT_TRUE(received.message);
    EXPECT_EQ(received.message->bytes, "second");
    EXPECT_TRUE(received.message->files.empty());
}

TEST_F(MessageTest, MoreThanTheSocketHoldsArrivesWhole)
{
    const std::string large(longestMessage, 'y');
    Received received;
    std::jthread reader([&] { received = receive(m_other.get(), Deadline::max()); });
    EXPECT_EQ(send(m_one.get(), large, {}, Deadline::max()), Sent::Yes);
    reader.join();
    ASSERT_TRUE(received.message);
    EXPECT_EQ(received.message->bytes, large);
}

TEST_F(MessageTest, MoreThanAMessageHasIsNotSent)
{
    EXPECT_EQ(send(m_one.get(), std::string(longestMessage + 1, 'y'), {}, soon()), Sent::No);
}

TEST_F(MessageTest, MoreThanAMessageHasIsNotBelieved)
{
    writePlain(lengthOf(0xffffffffU));
    const auto received = receive(m_other.get(), Deadline::max());
    EXPECT_FALSE(received.message);
    EXPECT_EQ(received.loss, Loss::Gone);
}

TEST_F(MessageTest, APartIsNotAMessage)
{
    writePlain(lengthOf(10) + "five.");
    m_one.close();
    const auto received = receive(m_other.get(), Deadline::max());
    EXPECT_FALSE(received.message);
    EXPECT_EQ(received.loss, Loss::Gone);
}

TEST_F(MessageTest, WhatDoesNotComeIsLate)
{
    EXPECT_EQ(receive(m_other.get(), soon()).loss, Loss::Late);
    writePlain(lengthOf(10) + "five.");
    EXPECT_EQ(receive(m_other.get(), soon()).loss, Loss::Late);
}

TEST_F(MessageTest, WhatIsNotTakenIsLate)
{
    EXPECT_EQ(send(m_one.get(), std::string(longestMessage, 'y'), {}, soon()), Sent::Late);
}

TEST_F(MessageTest, NobodyThereIsSaid)
{
    m_other.close();
    EXPECT_EQ(send(m_one.get(), "hello", {}, Deadline::max()), Sent::No);
    EXPECT_EQ(receive(m_one.get(), Deadline::max()).loss, Loss::Gone);
}

} // namespace
