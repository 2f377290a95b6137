#pragma once

#include "platform/linux/bookmarks/FileHandle.h"
#include "platform/linux/system/FileDescriptor.h"

#include <array>
#include <fcntl.h>
#include <linux/capability.h>
#include <stdexcept>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

/// While it lives, this thread may not open files by their handles, whoever runs the test.
class Unprivileged {
public:
    Unprivileged()
    {
        if (::syscall(SYS_capget, &m_header, m_before.data()) != 0)
            throw std::runtime_error("the capabilities are not told");
        auto reduced = m_before;
        reduced[CAP_TO_INDEX(CAP_DAC_READ_SEARCH)].effective &= ~CAP_TO_MASK(CAP_DAC_READ_SEARCH);
        set(reduced);
    }
    ~Unprivileged() { ::syscall(SYS_capset, &m_header, m_before.data()); }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;

private:
    using Capabilities = std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3>;

    void set(const Capabilities& capabilities)
    {
        if (::syscall(SYS_capset, &m_header, capabilities.data()) != 0)
            throw std::runtime_error("the capability cannot be given up");
    }

    __user_cap_header_struct m_header{_LINUX_CAPABILITY_VERSION_3, 0};
    Capabilities m_before{};
};

/// Whether the kernel opens the file of the handle for this thread, asked of the file system of `folder`.
[[nodiscard]] inline bool mayOpenByHandle(const LinuxDesktop::FileHandle& handle, const std::string& folder)
{
    using LinuxDesktop::FileDescriptor;
    const FileDescriptor place(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    LinuxDesktop::FileHandleBuffer buffer(handle);
    return static_cast<bool>(FileDescriptor(::open_by_handle_at(place.get(), buffer.get(), O_PATH | O_CLOEXEC)));
}
