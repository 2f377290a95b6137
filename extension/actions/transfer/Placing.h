#pragma once

#include "extension/actions/transfer/SystemCalls.h"

#include <string>

namespace MenuExtension::Transfers {

/// An item by the folder that it lies in.
struct Place {
    int folder;
    std::string name;
};

/// Moves an item within a file system to a name that nothing has. False, with errno: EEXIST where something has it.
[[nodiscard]] bool placeNew(SystemCalls& calls, const Place& item, const Place& target, bool isFolder);

enum class Replacing {
    /// With errno; nothing has changed.
    Failed,
    Replaced,
    /// There was no old item any more.
    NothingReplaced,
};

/// Puts an item in the place of another, which is never gone before the new one is there. The old item is then at
/// `old`, a free name of the same file system.
[[nodiscard]] Replacing placeInstead(SystemCalls& calls, const Place& item, const Place& target, bool isFolder,
                                     const Place& old);

/// Moves an item to the first name made of `target` and a number that nothing has. Gives the name; empty, with errno.
[[nodiscard]] std::string placeBeside(SystemCalls& calls, const Place& item, const Place& target, bool isFolder,
                                      std::size_t longestName);

} // namespace MenuExtension::Transfers
