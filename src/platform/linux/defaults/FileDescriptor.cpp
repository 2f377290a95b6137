#include "platform/linux/defaults/FileDescriptor.h"

#include <unistd.h>

namespace LinuxDesktop {

void FileDescriptor::reset()
{
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
}

} // namespace LinuxDesktop
