#pragma once

#include "platform/linux/system/FileDescriptor.h"

namespace MenuExtension {

/// Takes the lock of a folder that is open for reading, until that is closed. False where somebody else kept it for
/// ten seconds. On a file system that has no locks nobody has one.
[[nodiscard]] bool lockFolder(const LinuxDesktop::FileDescriptor& folder);

} // namespace MenuExtension
