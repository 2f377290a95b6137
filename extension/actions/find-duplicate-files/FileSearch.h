#pragma once

#include "extension/actions/duplicates/Finder.h"
#include "extension/actions/find-duplicate-files/Choices.h"
#include "extension/actions/find-duplicate-files/FileComparison.h"
#include "extension/actions/find-duplicate-files/FileTree.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

namespace MenuExtension {

/// One search for files that hold the same bytes.
class FileSearch {
public:
    using OpenItem = std::function<LinuxDesktop::FileDescriptor(const std::string& path, int flags)>;

    FileSearch(Duplicates::Findings& findings, Choices choices, std::stop_token stop);

    void run(const std::vector<std::string>& paths, const OpenItem& openItem);

private:
    using Clock = std::chrono::steady_clock;
    using Readings = std::vector<Reading>;
    using Identity = std::pair<dev_t, ino_t>;
    /// Files of one size in the tree, each file once.
    using SameSize = std::vector<std::uint32_t>;

    void walk(const std::vector<std::string>& paths, const OpenItem& openItem);
    [[nodiscard]] Readings filesForLookAhead() const;
    void lookAhead();
    void tellAhead(Readings& readings);

    void sortFiles();
    void eachSameSize(const std::function<void(const SameSize&)>& take) const;
    void compareAll();
    void compare(const Readings& readings);
    void compareEnds(Readings& readings);
    void compareWhole(Readings& readings);
    void tellGroups(Readings& readings);
    void tellGroup(std::span<const Reading> group);
    [[nodiscard]] Duplicates::Item itemOf(const Reading& reading) const;

    /// Whether two are of one size, and what was read of them is the same.
    [[nodiscard]] static bool areEqual(const Reading& one, const Reading& other);
    /// Calls for each part of the readings that are equal, two at least, the largest first.
    static void eachEqual(Readings& readings, const std::function<void(std::span<Reading>)>& take);
    void advance(std::uint64_t bytes);
    [[nodiscard]] Identity identityOf(std::uint32_t file) const;

    Duplicates::Findings& m_findings;
    const Choices m_choices;
    const std::stop_token m_stop;
    FileTree m_tree;
    const FileComparison m_comparison;

    std::atomic<std::uint64_t> m_done = 0;
    std::uint64_t m_total = 0;
    std::atomic<Clock::rep> m_told = 0;

    /// What was found ahead: the digests of whole files, and the groups' keys.
    std::map<Identity, Reading> m_known;
    std::map<std::pair<std::int64_t, Digest>, std::uint64_t> m_keys;
    bool m_hasLookedAhead = false;
    /// Whatever goes wrong then does so again when all is compared.
    bool m_isLookingAhead = false;
};

} // namespace MenuExtension
