#pragma once

#include "extension/actions/duplicates/Groups.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace MenuExtension::Duplicates {

/// A file that is open for reading, and is still the one that was found.
struct OpenedItem {
    const Item& item;
    int descriptor;
};

/// What a removal needs to know and do. All are called from the thread that removes.
struct RemovalMeans {
    /// Whether an item may go because of another that stays. Nothing where it may; else why not: the end of a
    /// sentence that begins with the first one's name, without a full stop. Both files have been looked at already:
    /// they are two, and have not changed since they were found.
    std::function<std::optional<std::string>(const OpenedItem& going, const OpenedItem& staying,
                                             const std::stop_token& stop)>
        check;
    /// Moves an item to the trash, or says why it could not, as above.
    std::function<std::optional<std::string>(const std::string& path)> trash;
};

/// Who hears of a removal, from the thread that removes.
struct RemovalReport {
    /// A chosen item that has gone to the trash.
    std::function<void(ItemNumber)> removed;
    /// A chosen item that stays where it is, and why.
    std::function<void(ItemNumber, const std::string& why)> kept;
    /// An item of a group, chosen or not, that is not there any more: maybe more than once. Of a chosen one `kept`
    /// hears too.
    std::function<void(ItemNumber)> missing;
};

/// Finds equal bytes in both, now. What `check` is for files.
[[nodiscard]] std::optional<std::string> haveEqualBytes(const OpenedItem& going, const OpenedItem& staying,
                                                        const std::stop_token& stop);

/// Moves the chosen items to the trash, and never the last copy: each goes only while an item of its group that is
/// not chosen is there, unchanged, and `check` has agreed to the two. Several processes may do this at once: both
/// files are locked meanwhile (flock). Nobody may change `groups` while it goes on. Ends within 100 ms of a request
/// to stop, but for the one item that is on its way to the trash.
void removeChosen(const Groups& groups, const RemovalMeans& means, const RemovalReport& report,
                  const std::stop_token& stop);

} // namespace MenuExtension::Duplicates
