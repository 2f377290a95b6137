#pragma once

#include <utility>

namespace LinuxDesktop {

/// Owns an open file.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor() { reset(); }
    FileDescriptor(FileDescriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }

    [[nodiscard]] explicit operator bool() const { return m_descriptor >= 0; }
    [[nodiscard]] int get() const { return m_descriptor; }
    void reset();
    /// Gives it up, open.
    [[nodiscard]] int release() { return std::exchange(m_descriptor, -1); }

private:
    int m_descriptor = -1;
};

} // namespace LinuxDesktop
