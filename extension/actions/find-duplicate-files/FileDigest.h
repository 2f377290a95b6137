#pragma once

#include "extension/actions/duplicates/Item.h"
#include "platform/linux/system/FileDescriptor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <tuple>

namespace MenuExtension {

/// The XXH128 of bytes: other bytes have another one, unless somebody has tried hard to make some that have not.
struct Digest {
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    friend bool operator==(const Digest&, const Digest&) = default;
    friend bool operator<(const Digest& one, const Digest& other)
    {
        return std::tie(one.high, one.low) < std::tie(other.high, other.low);
    }
};

/// Reads files. Each thread has one of its own.
class FileReader {
public:
    enum class Result {
        Read,
        /// It is not the one that was to be read, or became another meanwhile.
        Changed,
        /// It would have to be waited for.
        NotInMemory,
        /// With errno.
        Failed,
        Stopped,
    };
    enum class Wait { No, Yes };

    /// Files up to this size are as quickly read whole as only looked at.
    static constexpr std::int64_t smallSize = std::int64_t{128} << 10U;

    /// `hasRead` hears of bytes of whole files.
    FileReader(std::function<void(std::size_t)> hasRead, std::stop_token stop);

    /// Opens an ordinary file. Its state is that of the moment; errno is EISDIR or the like for anything else.
    [[nodiscard]] LinuxDesktop::FileDescriptor open(const std::string& path, Duplicates::FileState& state) const;
    /// The digest of the first and the last bytes of an open file.
    [[nodiscard]] Result readEnds(int file, const Duplicates::FileState& state, Wait wait, Digest& digest) const;
    /// The digest of all of it.
    [[nodiscard]] Result readWhole(int file, const Duplicates::FileState& state, Wait wait, Digest& digest) const;
    /// Has the disk begin with what the two will read.
    static void announceEnds(int file, const Duplicates::FileState& state);
    static void announceWhole(int file, const Duplicates::FileState& state);

private:
    static constexpr std::size_t bufferSize = std::size_t{256} << 10U;

    [[nodiscard]] Result readPart(int file, std::int64_t offset, std::size_t size, Wait wait) const;

    const std::function<void(std::size_t)> m_hasRead;
    const std::stop_token m_stop;
    const std::unique_ptr<std::array<std::byte, bufferSize>> m_buffer;
};

/// Where on its disk an open file begins; 0 where that is not known.
[[nodiscard]] std::uint64_t diskPosition(int file);
} // namespace MenuExtension
