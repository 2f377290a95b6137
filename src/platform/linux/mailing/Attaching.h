#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace LinuxDesktop {

/// What the thread that makes attachments and those who watch it tell each other. Any thread.
struct AttachingProgress {
    /// Set it, and the work ends soon.
    std::atomic<bool> cancelled = false;
    /// The bytes that have been packed or copied.
    std::atomic<std::uint64_t> bytes = 0;
};

/// Why an item did not become an attachment.
struct AttachingFailure {
    enum class Kind {
        Cancelled,
        /// It cannot be read, for `reason`.
        Unreadable,
        /// Items in it cannot be packed: `leftOut`.
        Incomplete,
        /// The disk for temporary files is as full as it may become.
        DiskFull,
        /// There is no writing where temporary files go, for `reason`.
        Unwritable
    };

    struct LeftOut {
        /// From the folder that was to be packed on.
        std::string path;
        std::string reason;
    };

    /// The failure to write a temporary file, with its errno value.
    static AttachingFailure unwritable(int error);

    Kind kind;
    std::string reason{};
    /// The first of them.
    std::vector<LeftOut> leftOut{};
    /// How many there are in all.
    std::size_t leftOutCount = 0;
};

} // namespace LinuxDesktop
