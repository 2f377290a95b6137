#include "platform/linux/bookmarks/BookmarkRecord.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Whatever is read as a bookmark is written as the same bytes. The checksum, which stops nearly everything, is made
/// right first.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace LinuxDesktop;
    NS::Data bytes(data, data + size);
    const std::uint64_t checksum = bookmarkChecksum(bytes);
    for (unsigned shift = 0; shift < 64; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(checksum >> shift));
    const auto record = decodeBookmark(bytes);
    if (record && encodeBookmark(*record) != bytes)
        std::abort();
    return 0;
}
