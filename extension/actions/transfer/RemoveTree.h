#pragma once

#include "extension/actions/transfer/Folder.h"
#include "extension/actions/transfer/Stamps.h"
#include "extension/actions/transfer/SystemCalls.h"

#include <string>

namespace MenuExtension::Transfers {

/// Removes an item with everything in it, also what its rights forbid its owner to remove. Follows no link. False,
/// with errno, where some of it is left.
[[nodiscard]] bool removeTree(SystemCalls& calls, int folder, const char* name);

/// The same for what was copied, and for folders that are empty then: what was added or changed since stays, and so
/// does what cannot be removed. The errno is EBUSY for the former.
[[nodiscard]] bool removeCopied(SystemCalls& calls, const Folder& folder, const std::string& name, Stamps& copied);

} // namespace MenuExtension::Transfers
