#pragma once

#include "Thumb.h"
#include "platform/linux/system/FileDescriptor.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace MenuExtension::SimilarPhotos {

/// Keeps thumbs by their numbers from 0 on: in a file without a name, so that memory does not grow with them, or in
/// memory where there can be none. One thread at a time.
class ThumbStore {
public:
    ThumbStore();

    void add(const Thumb& thumb);
    /// Nothing where the disk does not give it back.
    [[nodiscard]] std::optional<Thumb> thumb(std::uint32_t number) const;

private:
    LinuxDesktop::FileDescriptor m_file;
    std::uint32_t m_inFile = 0;
    /// Those that the file had no room for.
    std::vector<Thumb> m_thumbs;
};

} // namespace MenuExtension::SimilarPhotos
