#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace MenuExtension::Exif {

/// Bytes to look at in any order: those of an open file, which may change or shrink meanwhile, or of memory, which
/// outlives this.
class ByteSource {
public:
    explicit ByteSource(int file);
    explicit ByteSource(std::string_view memory) : m_memory(memory), m_size(memory.size()) {}

    /// As it was at first.
    [[nodiscard]] std::uint64_t size() const { return m_size; }
    /// So many bytes, at most `mostAtOnce`, or less where there are less. Good until the next look.
    [[nodiscard]] std::string_view look(std::uint64_t offset, std::size_t count);

    static constexpr std::size_t mostAtOnce = std::size_t{64} << 10U;

private:
    int m_file = -1;
    std::string_view m_memory;
    std::uint64_t m_size = 0;
    std::string m_window;
    std::uint64_t m_windowBegin = 0;
};

} // namespace MenuExtension::Exif
