#include "platform/linux/system/Pipe.h"

#include <array>
#include <fcntl.h>
#include <unistd.h>

namespace LinuxDesktop {

Pipe makePipe()
{
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return {};
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

} // namespace LinuxDesktop
