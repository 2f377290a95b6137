#include "extension/actions/transfer/FolderEntries.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <string_view>

namespace MenuExtension::Transfers {

namespace {

constexpr std::size_t readAtOnce = 8192;

} // namespace

FolderEntries::FolderEntries(SystemCalls& calls, const LinuxDesktop::FileDescriptor& folder) : m_calls(calls)
{
    // Of its own, since the place in a folder is the descriptor's.
    LinuxDesktop::FileDescriptor own = calls.open(folder.get(), "", O_RDONLY | O_DIRECTORY);
    m_folder.reset(own ? ::fdopendir(own.get()) : nullptr);
    if (m_folder) {
        static_cast<void>(own.release());
    } else {
        m_error = errno;
        m_atEnd = true;
    }
}

const char* FolderEntries::next()
{
    if (m_next == m_entries.size() && !m_atEnd)
        readMore();
    return m_next < m_entries.size() ? m_names.data() + m_entries[m_next++].name : nullptr;
}

void FolderEntries::readMore()
{
    m_names.clear();
    m_entries.clear();
    m_next = 0;
    while (m_entries.size() < readAtOnce) {
        const dirent* entry = m_calls.nextEntry(m_folder.get());
        if (!entry) {
            m_error = errno;
            m_atEnd = true;
            // A large folder of many folders holds no more open than it must.
            m_folder.reset();
            break;
        }
        const std::string_view name = static_cast<const char*>(entry->d_name);
        if (name == "." || name == "..")
            continue;
        m_entries.push_back({entry->d_ino, m_names.size()});
        m_names.insert(m_names.end(), name.data(), name.data() + name.size() + 1);
    }
    std::ranges::sort(m_entries, {}, &Entry::file);
}

} // namespace MenuExtension::Transfers
