#pragma once

#include "platform/linux/system/FileDescriptor.h"

namespace LinuxDesktop {

struct Pipe {
    FileDescriptor reading;
    FileDescriptor writing;
};

/// Neither end is another program's. Where there are no more descriptors an empty one, with errno.
[[nodiscard]] Pipe makePipe();

} // namespace LinuxDesktop
