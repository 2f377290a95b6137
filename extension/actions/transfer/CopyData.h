#pragma once

#include "extension/actions/transfer/Progress.h"
#include "extension/actions/transfer/SystemCalls.h"

#include <optional>
#include <vector>

namespace MenuExtension::Transfers {

/// Copies what files hold: by sharing the bytes where the file system can, within the system where it cannot, and
/// with the holes that the file has. One thread.
class DataCopier {
public:
    DataCopier(SystemCalls& calls, Progress& progress) : m_calls(calls), m_progress(progress) {}

    /// Fills `to`, which is new and empty, with what `from` holds. False, with errno: ECANCELED where it was told to
    /// leave it, EBUSY where the file has changed meanwhile.
    [[nodiscard]] bool copy(int from, const struct stat& source, int to);

private:
    [[nodiscard]] bool clone(int from, const struct stat& source, int to);
    [[nodiscard]] bool copyData(int from, const struct stat& source, int to);
    [[nodiscard]] bool copySegment(int from, int to, off_t begin, off_t end);
    [[nodiscard]] ssize_t copySome(int from, int to, off_t at, std::size_t count);
    [[nodiscard]] bool isAtEnd(int from, off_t at);

    SystemCalls& m_calls;
    Progress& m_progress;
    bool m_canClone = true;
    /// The last device that the target shares no bytes with.
    std::optional<dev_t> m_notClonedFrom;
    bool m_canCopyRange = true;
    std::vector<char> m_buffer;
};

} // namespace MenuExtension::Transfers
