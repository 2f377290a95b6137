#pragma once

#include "extension/actions/transfer/Problem.h"

#include <cstdint>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace MenuExtension::Transfers {

/// What becomes of an item whose name is taken at the target.
enum class Resolution { Skip, KeepBoth, Replace, Merge, Cancel };

/// An item and the one that has its name at the target.
struct Conflict {
    struct Side {
        std::string path;
        struct stat status;
    };
    Side source;
    Side target;
    /// False where that would put an end to the source too.
    bool canReplace = true;
    /// Both are folders, of which one can be put into the other.
    bool canMerge = false;
};

struct Decision {
    Resolution resolution = Resolution::Cancel;
    /// For all the rest of the kind: files, folders, or one of each.
    bool forAll = false;
};

/// Who is asked while a transfer runs, on its thread.
class Asked {
public:
    Asked() = default;
    virtual ~Asked() = default;
    Asked(const Asked&) = delete;
    Asked& operator=(const Asked&) = delete;

    [[nodiscard]] virtual Decision decide(const Conflict& conflict) = 0;
    /// Before anything is written: some of the items cannot be transferred. Whether the others are.
    [[nodiscard]] virtual bool goesOnWithout(const Problems& problems) = 0;
};

} // namespace MenuExtension::Transfers
