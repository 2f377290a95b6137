#pragma once

#include "platform/Value.h"

#include <string>
#include <variant>

namespace NS {

/// Why the environment refused something.
struct Error {
    std::string localizedDescription;
};

/// A blob that leads back to a file or folder even after it was moved, or why there is none.
using BookmarkData = std::variant<Data, Error>;

/// Options of a bookmark, as bits.
inline constexpr unsigned BookmarkCreationWithSecurityScope = 0x800;

} // namespace NS
