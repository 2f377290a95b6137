#pragma once

#include "extension/actions/find-duplicate-files/FileDigest.h"
#include "extension/actions/find-duplicate-files/FileTree.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <span>
#include <stop_token>
#include <string>

namespace MenuExtension {

/// A file that is read.
struct Reading {
    /// Its index among the tree's files.
    std::uint32_t file = 0;
    /// Whether there is a digest; it went wrong otherwise, or was not reached.
    bool isRead = false;
    /// When it was read at first.
    Duplicates::FileState state = {};
    Digest digest = {};
};

/// Reads many files in as many threads as help, in the order in which the disk has them where they are not in memory.
class FileComparison {
public:
    enum class What { Ends, Whole };
    using Trouble = std::function<void(const std::string& path, const std::string& why)>;

    /// `trouble` and `hasRead`, which hears of bytes of whole files, are called in any thread.
    FileComparison(const FileTree& tree, Trouble trouble, std::function<void(std::size_t)> hasRead,
                   std::stop_token stop);

    /// Fills the readings, which come back in another order. Those that were read before must not have changed.
    void read(std::span<Reading> readings, What what) const;

private:
    struct Pending;

    void work(std::span<Reading> readings, What what, std::size_t window, std::atomic<std::size_t>& next) const;
    [[nodiscard]] LinuxDesktop::FileDescriptor open(const FileReader& reader, Reading& reading) const;
    void settle(Reading& reading, FileReader::Result result, const Digest& digest) const;
    [[nodiscard]] bool isAsBefore(const Reading& reading, const Duplicates::FileState& state) const;

    const FileTree& m_tree;
    const Trouble m_trouble;
    const std::function<void(std::size_t)> m_hasRead;
    const std::stop_token m_stop;
};

} // namespace MenuExtension
