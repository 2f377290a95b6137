#pragma once

#include "extension/actions/transfer/SystemCalls.h"

#include <string>
#include <utility>
#include <vector>

namespace MenuExtension::Transfers {

/// Gives a copy what its original has beside the bytes: owner, extended attributes with the access rights among them,
/// permissions, times. What the target's file system has no place for, and what the user may not give, is left out.
/// One thread.
class AttributeCopier {
public:
    /// Extended attributes: names and values.
    using Extended = std::vector<std::pair<std::string, std::string>>;

    explicit AttributeCopier(SystemCalls& calls) : m_calls(calls) {}

    /// `to` is the copy, `made` as it was made. False, with errno.
    [[nodiscard]] bool copy(int from, const struct stat& source, int to, const struct stat& made);
    /// The same in two steps, for where the original goes before the copy is there.
    [[nodiscard]] bool read(int from, Extended& extended);
    [[nodiscard]] bool give(const struct stat& source, const Extended& extended, int to, const struct stat& made);
    /// Whether the one that was just given them lacks extended attributes since they are too large.
    [[nodiscard]] bool hadNoRoom() const { return m_hadNoRoom; }
    /// The same for what is not opened: a link, a pipe. Of a link what a link can have.
    [[nodiscard]] bool copyUnopened(const struct stat& source, int folder, const char* name);

private:
    [[nodiscard]] bool copyOwner(const struct stat& source, int folder, const char* name, mode_t& mode);
    [[nodiscard]] bool giveExtended(const Extended& extended, int to);
    [[nodiscard]] bool copyTimes(const struct stat& source, int folder, const char* name);

    SystemCalls& m_calls;
    std::vector<char> m_names;
    std::vector<char> m_value;
    Extended m_extended;
    bool m_hadNoRoom = false;
};

} // namespace MenuExtension::Transfers
