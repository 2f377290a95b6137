#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <string>
#include <string_view>

namespace MenuExtension {

/// Opens `path`, which lies in `folder` by its text or is that folder, without leaving the folder on the way: a link
/// inside it is followed, one that leads out of it is not, whenever it came there. Close-on-exec. Nothing, with
/// errno, which is then EXDEV or ELOOP.
[[nodiscard]] LinuxDesktop::FileDescriptor openBeneath(const std::string& folder, std::string_view path, int flags);

/// The same for a kernel that cannot do it: follows no link at all.
[[nodiscard]] LinuxDesktop::FileDescriptor openBeneathByWalking(const std::string& folder, std::string_view path,
                                                                int flags);

} // namespace MenuExtension
