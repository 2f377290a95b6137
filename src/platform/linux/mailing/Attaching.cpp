#include "platform/linux/mailing/Attaching.h"

#include <cerrno>
#include <system_error>

namespace LinuxDesktop {

AttachingFailure AttachingFailure::unwritable(int error)
{
    const bool full = error == ENOSPC || error == EDQUOT;
    return {full ? Kind::DiskFull : Kind::Unwritable, std::generic_category().message(error)};
}

} // namespace LinuxDesktop
