#pragma once

#include "extension/actions/duplicates/Item.h"

#include <functional>
#include <string>
#include <vector>

namespace MenuExtension::Duplicates {

/// Which items of a group are kept.
struct KeepRule {
    enum class Kind {
        Oldest,
        Newest,
        ShortestPath,
        /// All that lie in `folder` at any depth. A group that has none there is left as it is.
        InFolder,
        /// The best by `isBetter`.
        Best,
    };

    Kind kind = Kind::Oldest;
    std::string folder = {};
    /// A strict weak order: whether the first is the one to keep of the two.
    std::function<bool(const Item& one, const Item& other)> isBetter = {};

    /// For each item of a group whether it is kept; at least one is, or the rule says nothing about the group and
    /// nothing is given. Among equals the one with the shorter path is kept, then the one whose path comes first.
    [[nodiscard]] std::vector<bool> kept(const std::vector<Item>& items) const;
};

/// Whether a path lies in a folder at any depth, by its text.
[[nodiscard]] bool liesIn(const std::string& path, const std::string& folder);

} // namespace MenuExtension::Duplicates
