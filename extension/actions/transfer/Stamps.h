#pragma once

#include <cstdint>
#include <sys/stat.h>
#include <vector>

namespace MenuExtension::Transfers {

/// Which files were copied, and as they were then: eight bytes a file. One thread.
class Stamps {
public:
    /// `folder` is the one that the file lies in under that name: of a file of several names each is copied by
    /// itself.
    void add(const struct stat& status, ino_t folder, const char* name);
    /// Whether it is one of them, and has not changed since.
    [[nodiscard]] bool contains(const struct stat& status, ino_t folder, const char* name);
    void clear() { m_stamps.clear(); }

private:
    std::vector<std::uint64_t> m_stamps;
    bool m_isSorted = true;
};

} // namespace MenuExtension::Transfers
