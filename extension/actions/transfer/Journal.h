#pragma once

#include "extension/actions/transfer/CopyAttributes.h"
#include "extension/actions/transfer/Folder.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <variant>

namespace MenuExtension::Transfers {

/// Many steps share the path of a folder.
using SharedPath = std::shared_ptr<const std::string>;

/// An item has come to its place.
struct Placed {
    SharedPath sourceFolder;
    std::string sourceName;
    SharedPath targetFolder;
    std::string targetName;
    /// None where it could not be asked for.
    Identity identity;
    bool isFolder = false;
    /// It is nowhere else any more.
    bool isMoved = false;
};

/// An item was replaced, and is kept.
struct Replaced {
    SharedPath folder;
    std::string name;
    std::size_t staging;
    std::string keptName;
    /// As it was in its place.
    Identity identity;
    bool isFolder;
};

/// A folder has gone, since all that was in it was moved into another.
struct Emptied {
    std::string path;
    /// As it was with all that was in it; by itself, so that the many other steps take no room for it.
    std::shared_ptr<const struct stat> status;
    AttributeCopier::Extended extended;
};

/// What was done, in its order. There may be very many: it grows without a second copy of it.
using Journal = std::deque<std::variant<Placed, Replaced, Emptied>>;

} // namespace MenuExtension::Transfers
