#include "platform/linux/bookmarks/BookmarkRecord.h"

#include <bit>
#include <climits>
#include <concepts>
#include <cstddef>
#include <fcntl.h>
#include <string_view>

namespace LinuxDesktop {

namespace {

constexpr std::uint8_t version = 1;
constexpr std::size_t longestPath = PATH_MAX - 1;

template<std::unsigned_integral Number>
void put(NS::Data& bytes, Number number)
{
    for (std::size_t index = 0; index < sizeof(number); ++index)
        bytes.push_back(static_cast<std::uint8_t>(number >> (CHAR_BIT * index)));
}

void put(NS::Data& bytes, std::string_view text)
{
    bytes.insert(bytes.end(), text.begin(), text.end());
}

/// Takes what put() wrote off the front. Past the end everything is zero and empty, and failed() says so.
class Reader {
public:
    explicit Reader(std::span<const std::uint8_t> bytes) : m_rest(bytes) {}

    template<std::unsigned_integral Number>
    Number number()
    {
        std::uint64_t result = 0;
        const auto bytes = take(sizeof(Number));
        for (std::size_t index = 0; index < bytes.size(); ++index)
            result |= std::uint64_t{bytes[index]} << (CHAR_BIT * index);
        return static_cast<Number>(result);
    }
    /// A byte that is 0 or 1.
    bool flag()
    {
        const auto value = number<std::uint8_t>();
        m_failed = m_failed || value > 1;
        return value == 1;
    }
    std::string text(std::size_t length)
    {
        const auto bytes = take(length);
        return {bytes.begin(), bytes.end()};
    }

    [[nodiscard]] bool failed() const { return m_failed; }
    [[nodiscard]] bool atEnd() const { return m_rest.empty(); }

private:
    std::span<const std::uint8_t> take(std::size_t count)
    {
        if (m_failed || count > m_rest.size()) {
            m_failed = true;
            return {};
        }
        const auto taken = m_rest.first(count);
        m_rest = m_rest.subspan(count);
        return taken;
    }

    std::span<const std::uint8_t> m_rest;
    bool m_failed = false;
};

bool isAbsolutePath(std::string_view path)
{
    return path.starts_with('/') && path.size() <= longestPath && path.find('\0') == std::string_view::npos;
}

} // namespace

std::uint64_t bookmarkChecksum(std::span<const std::uint8_t> bytes)
{
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const std::uint8_t byte : bytes)
        hash = (hash ^ byte) * 0x100000001b3;
    return hash;
}

NS::Data encodeBookmark(const BookmarkRecord& record)
{
    const FolderIdentity& folder = record.folder;
    NS::Data bytes;
    put(bytes, version);
    put(bytes, folder.device);
    put(bytes, folder.inode);
    put(bytes, folder.fileSystem);
    put(bytes, std::uint8_t{folder.birth.has_value()});
    if (folder.birth) {
        put(bytes, std::bit_cast<std::uint64_t>(folder.birth->seconds));
        put(bytes, folder.birth->nanoseconds);
    }
    put(bytes, std::uint8_t{folder.handle.has_value()});
    if (folder.handle) {
        put(bytes, std::bit_cast<std::uint32_t>(folder.handle->type));
        put(bytes, static_cast<std::uint8_t>(folder.handle->bytes.size()));
        put(bytes, folder.handle->bytes);
    }
    put(bytes, static_cast<std::uint16_t>(record.path.size()));
    put(bytes, record.path);
    put(bytes, bookmarkChecksum(bytes));
    return bytes;
}

std::optional<BookmarkRecord> decodeBookmark(std::span<const std::uint8_t> bytes)
{
    constexpr std::size_t checksumSize = sizeof(std::uint64_t);
    if (bytes.size() < checksumSize)
        return std::nullopt;
    const auto content = bytes.first(bytes.size() - checksumSize);
    if (Reader(bytes.last(checksumSize)).number<std::uint64_t>() != bookmarkChecksum(content))
        return std::nullopt;

    Reader reader(content);
    if (reader.number<std::uint8_t>() != version)
        return std::nullopt;
    BookmarkRecord record;
    FolderIdentity& folder = record.folder;
    folder.device = reader.number<std::uint64_t>();
    folder.inode = reader.number<std::uint64_t>();
    folder.fileSystem = reader.number<std::uint64_t>();
    if (reader.flag()) {
        folder.birth.emplace();
        folder.birth->seconds = std::bit_cast<std::int64_t>(reader.number<std::uint64_t>());
        folder.birth->nanoseconds = reader.number<std::uint32_t>();
    }
    if (reader.flag()) {
        folder.handle.emplace();
        folder.handle->type = std::bit_cast<std::int32_t>(reader.number<std::uint32_t>());
        folder.handle->bytes = reader.text(reader.number<std::uint8_t>());
        if (folder.handle->bytes.size() > MAX_HANDLE_SZ)
            return std::nullopt;
    }
    record.path = reader.text(reader.number<std::uint16_t>());
    if (reader.failed() || !reader.atEnd() || !isAbsolutePath(record.path))
        return std::nullopt;
    return record;
}

} // namespace LinuxDesktop
