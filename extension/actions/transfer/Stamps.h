#pragma once

#include <cstdint>
#include <sys/stat.h>
#include <vector>

namespace MenuExtension::Transfers {

/// Which files were copied, and as they were then: eight bytes a file. One thread.
class Stamps {
public:
    void add(const struct stat& status);
    /// Whether it is one of them, and has not changed since.
    [[nodiscard]] bool contains(const struct stat& status);
    void clear() { m_stamps.clear(); }

private:
    std::vector<std::uint64_t> m_stamps;
    bool m_isSorted = true;
};

} // namespace MenuExtension::Transfers
