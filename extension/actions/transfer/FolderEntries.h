#pragma once

#include "extension/actions/transfer/SystemCalls.h"
#include "platform/linux/system/FolderStream.h"

#include <cstdint>
#include <vector>

namespace MenuExtension::Transfers {

/// The names in a folder, some thousand at a time, in the order in which most file systems keep the files: reading
/// them in that order spares a disk from seeking.
class FolderEntries {
public:
    /// `folder` is open for reading and may be closed afterwards.
    FolderEntries(SystemCalls& calls, const LinuxDesktop::FileDescriptor& folder);

    /// The next name; null at the end, where error() says whether it is the true one.
    [[nodiscard]] const char* next();
    /// Why the folder could not be read to its end; 0 where it could.
    [[nodiscard]] int error() const { return m_error; }

private:
    struct Entry {
        ino_t file;
        std::size_t name;
    };
    void readMore();

    SystemCalls& m_calls;
    LinuxDesktop::FolderStream m_folder;
    std::vector<char> m_names;
    std::vector<Entry> m_entries;
    std::size_t m_next = 0;
    int m_error = 0;
    bool m_atEnd = false;
};

} // namespace MenuExtension::Transfers
