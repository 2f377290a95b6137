#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <cstddef>
#include <span>
#include <type_traits>
#include <utility>

namespace MenuExtension::Duplicates {

/// Memory that grows in its place. Of what is beyond `inMemory` bytes the system may keep as much in a file without a
/// name as it likes, and this process's own part of it is let go of whenever it grows.
class GrowingMemory {
public:
    static constexpr std::size_t inMemory = std::size_t{12} << 20U;

    GrowingMemory() = default;
    ~GrowingMemory();
    GrowingMemory(GrowingMemory&& other) noexcept;
    GrowingMemory& operator=(GrowingMemory&& other) noexcept;

    [[nodiscard]] std::byte* data() const { return m_begin; }
    /// Makes the first `size` bytes usable. Throws std::bad_alloc.
    void provide(std::size_t size)
    {
        if (size > m_provided)
            grow(size);
    }
    /// Lets go of this process's part of what is in the file. Nothing is lost.
    void rest() const;

private:
    void grow(std::size_t size);
    [[nodiscard]] bool mapFile(std::size_t length);

    std::byte* m_begin = nullptr;
    std::size_t m_reserved = 0;
    std::size_t m_provided = 0;
    LinuxDesktop::FileDescriptor m_file;
    /// What is in the file.
    std::size_t m_fileBegin = 0;
    std::size_t m_fileEnd = 0;
};

/// An array of plain values for millions of them. A reference into it stays good until clear().
template<typename T>
class GrowingArray {
    static_assert(std::is_trivially_copyable_v<T>);

public:
    [[nodiscard]] std::size_t size() const { return m_size; }
    [[nodiscard]] T& operator[](std::size_t index) { return data()[index]; }
    [[nodiscard]] const T& operator[](std::size_t index) const { return data()[index]; }
    [[nodiscard]] T* data() const { return static_cast<T*>(static_cast<void*>(m_memory.data())); }
    [[nodiscard]] T* begin() const { return data(); }
    [[nodiscard]] T* end() const { return data() + m_size; }

    void add(const T& value) { add(std::span(&value, 1)); }
    /// The index of the first.
    std::size_t add(std::span<const T> values)
    {
        m_memory.provide((m_size + values.size()) * sizeof(T));
        T* target = data() + m_size;
        for (const T& value : values)
            *target++ = value;
        return std::exchange(m_size, m_size + values.size());
    }
    void clear()
    {
        m_memory = {};
        m_size = 0;
    }
    void rest() const { m_memory.rest(); }

private:
    GrowingMemory m_memory;
    std::size_t m_size = 0;
};

} // namespace MenuExtension::Duplicates
