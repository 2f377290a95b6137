#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <sys/stat.h>

namespace MenuExtension {

/// What becomes of attributes that the new file's file system has no place for.
enum class Unsupported { Fail, AreLeft };

/// Gives an open file the owner, as far as that may be given, the permissions, the lists of rights and what programs
/// have noted of another; `status` is the other's. False, with errno, where something that is the user's would be
/// lost.
[[nodiscard]] bool copyAttributes(int from, int to, const struct stat& status,
                                  Unsupported unsupported = Unsupported::Fail);

/// Makes the names in a folder durable; a file system that has no such operation counts as having done it.
[[nodiscard]] bool syncFolder(const LinuxDesktop::FileDescriptor& folder);

/// Whether errno says that the file system has no such thing as the call was for.
[[nodiscard]] bool isUnsupported();

} // namespace MenuExtension
