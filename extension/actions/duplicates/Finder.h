#pragma once

#include "extension/actions/duplicates/Item.h"

#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

namespace MenuExtension::Duplicates {

/// How far a finder has come.
struct Progress {
    /// Files that were looked at.
    std::uint64_t files = 0;
    /// Of the work, in a unit of the finder's own; no total while that is not known.
    std::uint64_t done = 0;
    std::uint64_t total = 0;
};

/// Who listens to a finder. Any thread, several at once; a call may wait until what was told before is taken in.
class Findings {
public:
    Findings() = default;
    virtual ~Findings() = default;
    Findings(const Findings&) = delete;
    Findings& operator=(const Findings&) = delete;

    /// Items that are duplicates of each other, two at least, and all of them where `group` is 0. The same `group`
    /// again adds to it, and then one will do.
    virtual void found(std::uint64_t group, std::vector<Item> items) = 0;
    virtual void progress(const Progress& progress) = 0;
    /// Why a file or folder was left out: the end of a sentence that begins with its name, without a full stop, as
    /// "cannot be read: Permission denied".
    virtual void trouble(const std::string& path, const std::string& why) = 0;
};

/// Finds groups of duplicates.
class Finder {
public:
    Finder() = default;
    virtual ~Finder() = default;
    Finder(const Finder&) = delete;
    Finder& operator=(const Finder&) = delete;

    /// Tells of every group before it returns, which it does within 100 ms of a request to stop. In a thread of its
    /// own. When it is called again after that, it begins anew by what the control over the list says then; it may
    /// keep what it has learnt.
    virtual void find(Findings& findings, std::stop_token stop) = 0;
};

} // namespace MenuExtension::Duplicates
