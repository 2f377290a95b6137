#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <string>

namespace LinuxDesktop {

/// The handle that the kernel gives a file for as long as it exists. No later file gets the same one.
struct FileHandle {
    std::int32_t type = 0;
    /// At most MAX_HANDLE_SZ.
    std::string bytes;

    friend bool operator==(const FileHandle&, const FileHandle&) = default;
};

/// A handle as the system calls take and give it.
class FileHandleBuffer {
public:
    /// With room for any handle.
    FileHandleBuffer() { get()->handle_bytes = MAX_HANDLE_SZ; }
    explicit FileHandleBuffer(const FileHandle& handle)
    {
        get()->handle_bytes = static_cast<unsigned>(handle.bytes.size());
        get()->handle_type = handle.type;
        std::ranges::copy(handle.bytes, bytes());
    }

    [[nodiscard]] file_handle* get() { return reinterpret_cast<file_handle*>(m_room.data()); }
    [[nodiscard]] FileHandle handle() { return {get()->handle_type, std::string(bytes(), get()->handle_bytes)}; }

private:
    [[nodiscard]] char* bytes() { return m_room.data() + offsetof(file_handle, f_handle); }

    alignas(file_handle) std::array<char, sizeof(file_handle) + MAX_HANDLE_SZ> m_room{};
};

} // namespace LinuxDesktop
