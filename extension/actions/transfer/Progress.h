#pragma once

#include <atomic>
#include <cstdint>

namespace MenuExtension::Transfers {

/// How far a transfer has come, told by the thread that does it to the one that shows it. Any thread.
struct Progress {
    enum class Phase {
        /// What there is to do is being counted.
        Counting,
        Working,
        /// What was written is being flushed to the disk.
        Flushing,
    };

    std::atomic<Phase> phase = Phase::Counting;
    std::atomic<std::uint64_t> files = 0;
    std::atomic<std::uint64_t> bytes = 0;
    std::atomic<std::uint64_t> totalFiles = 0;
    std::atomic<std::uint64_t> totalBytes = 0;
    /// Set to leave it: what is not whole goes, what is done stays.
    std::atomic<bool> cancelled = false;

    /// For something new to do.
    void start(std::uint64_t files)
    {
        cancelled = false;
        this->files = bytes = totalBytes = 0;
        totalFiles = files;
        phase = Phase::Working;
    }
};

} // namespace MenuExtension::Transfers
