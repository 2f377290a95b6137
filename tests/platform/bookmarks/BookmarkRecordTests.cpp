#include "platform/linux/bookmarks/BookmarkRecord.h"

#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <random>

using namespace LinuxDesktop;

namespace {

BookmarkRecord fullRecord()
{
    BookmarkRecord record;
    record.path = "/home/someone/a folder\nwith a line end and \xff";
    record.folder.device = 0xfd01;
    record.folder.inode = 0x1122334455667788;
    record.folder.fileSystem = 0xffeeddccbbaa9988;
    record.folder.birth = FileTime{-1, 999'999'999};
    record.folder.handle = FileHandle{-2, std::string("\0handle\xff", 8)};
    return record;
}

void appendChecksum(NS::Data& bytes)
{
    const std::uint64_t checksum = bookmarkChecksum(bytes);
    for (unsigned shift = 0; shift < 64; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(checksum >> shift));
}

/// The record's bytes after `change`, with a checksum that is right.
NS::Data changed(const BookmarkRecord& record, const std::function<void(NS::Data&)>& change)
{
    NS::Data bytes = encodeBookmark(record);
    bytes.erase(bytes.end() - sizeof(std::uint64_t), bytes.end());
    change(bytes);
    appendChecksum(bytes);
    return bytes;
}

} // namespace

TEST(BookmarkRecord, ComesBackAsItWas)
{
    EXPECT_EQ(decodeBookmark(encodeBookmark(fullRecord())), fullRecord());
}

TEST(BookmarkRecord, ComesBackWithoutWhatTheFileSystemDoesNotHave)
{
    BookmarkRecord record = fullRecord();
    record.folder.birth.reset();
    EXPECT_EQ(decodeBookmark(encodeBookmark(record)), record);
    record.folder.handle.reset();
    EXPECT_EQ(decodeBookmark(encodeBookmark(record)), record);
}

TEST(BookmarkRecord, HoldsTheLongestPathAndTheLongestHandle)
{
    BookmarkRecord record = fullRecord();
    record.path = "/" + std::string(4094, 'x');
    record.folder.handle->bytes = std::string(MAX_HANDLE_SZ, 'h');
    EXPECT_EQ(decodeBookmark(encodeBookmark(record)), record);

    record.path += 'x';
    EXPECT_FALSE(decodeBookmark(encodeBookmark(record)));
    record.path.pop_back();
    record.folder.handle->bytes += 'h';
    EXPECT_FALSE(decodeBookmark(encodeBookmark(record)));
}

TEST(BookmarkRecord, IsRefusedWhenItWasCutAnywhere)
{
    const NS::Data whole = encodeBookmark(fullRecord());
    const NS::Data content(whole.begin(), whole.end() - sizeof(std::uint64_t));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(decodeBookmark(std::span(whole).first(length))) << length;
    for (std::size_t length = 0; length < content.size(); ++length) {
        NS::Data bytes(content.begin(), content.begin() + static_cast<std::ptrdiff_t>(length));
        appendChecksum(bytes);
        EXPECT_FALSE(decodeBookmark(bytes)) << length << " bytes with a right checksum";
    }
}

TEST(BookmarkRecord, IsRefusedWhenAnyBitOfItChanged)
{
    NS::Data bytes = encodeBookmark(fullRecord());
    for (std::size_t bit = 0; bit < bytes.size() * 8; ++bit) {
        bytes[bit / 8] ^= static_cast<std::uint8_t>(1U << (bit % 8));
        EXPECT_FALSE(decodeBookmark(bytes)) << bit;
        bytes[bit / 8] ^= static_cast<std::uint8_t>(1U << (bit % 8));
    }
    EXPECT_TRUE(decodeBookmark(bytes));
}

TEST(BookmarkRecord, IsRefusedInAnotherVersion)
{
    for (const int version : {0, 2, 255})
        EXPECT_FALSE(decodeBookmark(
            changed(fullRecord(), [&](NS::Data& bytes) { bytes[0] = static_cast<std::uint8_t>(version); })));
}

TEST(BookmarkRecord, IsRefusedWithMoreBehindIt)
{
    EXPECT_FALSE(decodeBookmark(changed(fullRecord(), [](NS::Data& bytes) { bytes.push_back(0); })));
}

TEST(BookmarkRecord, IsRefusedWithAPathThatIsNone)
{
    BookmarkRecord record = fullRecord();
    for (const auto& path : {std::string(), std::string("relative/path"), std::string("/with\0in it", 11)}) {
        record.path = path;
        EXPECT_FALSE(decodeBookmark(encodeBookmark(record))) << path;
    }
}

TEST(BookmarkRecord, IsNeverReadFromRandomBytes)
{
    std::mt19937 generator(1);
    for (int round = 0; round < 10'000; ++round) {
        NS::Data bytes(generator() % 200);
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(generator());
        EXPECT_FALSE(decodeBookmark(bytes));
    }
}

TEST(BookmarkRecord, ThatIsReadFromForgedBytesHasExactlyThese)
{
    std::mt19937 generator(2);
    int taken = 0;
    for (int round = 0; round < 10'000; ++round) {
        const NS::Data bytes = changed(fullRecord(), [&](NS::Data& content) {
            content[generator() % content.size()] = static_cast<std::uint8_t>(generator() % 8);
        });
        const auto record = decodeBookmark(bytes);
        if (!record)
            continue;
        ++taken;
        EXPECT_EQ(encodeBookmark(*record), bytes);
    }
    EXPECT_GT(taken, 0);
}
