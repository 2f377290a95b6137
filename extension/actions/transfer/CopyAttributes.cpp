#include "extension/actions/transfer/CopyAttributes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace MenuExtension::Transfers {

namespace {

constexpr mode_t permissions = 07777;
constexpr mode_t asOwner = S_ISUID | S_ISGID;
/// The most that the system takes, of names and of a value.
constexpr std::size_t longest = std::size_t{64} << 10U;

/// Whether the target, or the user's rights, have no such thing.
bool isImpossible(int error)
{
    return error == EPERM || error == EACCES || error == ENOTSUP || error == ENOSYS || error == EINVAL ||
           error == E2BIG || error == ERANGE;
}

/// Said of an attribute too where a file system keeps them in little room; a full disk is met by the bytes.
bool isTooLarge(int error)
{
    return error == ENOSPC || error == EDQUOT || error == E2BIG || error == ERANGE;
}

} // namespace

bool AttributeCopier::copy(int from, const struct stat& source, int to, const struct stat& made)
{
    return read(from, m_extended) && give(source, m_extended, to, made);
}

bool AttributeCopier::give(const struct stat& source, const Extended& extended, int to, const struct stat& made)
{
    mode_t mode = source.st_mode & permissions;
    const bool hasOwner = source.st_uid == made.st_uid && source.st_gid == made.st_gid;
    if (!hasOwner && !copyOwner(source, to, "", mode))
        return false;
    if (!giveExtended(extended, to))
        return false;
    // A change of the owner may have taken some of them.
    if ((hasOwner && mode == (made.st_mode & permissions)) || m_calls.setMode(to, "", mode) == 0 ||
        isImpossible(errno))
        return copyTimes(source, to, "");
    return false;
}

bool AttributeCopier::copyUnopened(const struct stat& source, int folder, const char* name)
{
    struct stat made = {};
    mode_t mode = source.st_mode & permissions;
    if (m_calls.status(folder, name, made) != 0)
        return false;
    if ((source.st_uid != made.st_uid || source.st_gid != made.st_gid) && !copyOwner(source, folder, name, mode))
        return false;
    // A link has none of its own, and what is made anew not all of them.
    if (!S_ISLNK(source.st_mode) && mode != (made.st_mode & permissions) &&
        m_calls.setMode(folder, name, mode) != 0 && !isImpossible(errno))
        return false;
    return copyTimes(source, folder, name);
}

/// What runs as its owner must not come to run as another.
bool AttributeCopier::copyOwner(const struct stat& source, int folder, const char* name, mode_t& mode)
{
    if (m_calls.setOwner(folder, name, source.st_uid, source.st_gid) == 0)
        return true;
    if (!isImpossible(errno))
        return false;
    mode &= ~asOwner;
    return m_calls.setOwner(folder, name, static_cast<uid_t>(-1), source.st_gid) == 0 || isImpossible(errno);
}

bool AttributeCopier::read(int from, Extended& extended)
{
    extended.clear();
    m_names.resize(longest);
    const ssize_t length = m_calls.listAttributes(from, m_names.data(), m_names.size());
    if (length < 0)
        return isImpossible(errno);
    for (const char* name = m_names.data(); name < m_names.data() + length; name += std::strlen(name) + 1) {
        m_value.resize(longest);
        const ssize_t size = m_calls.attribute(from, name, m_value.data(), m_value.size());
        if (size < 0 && (errno == ENODATA || isImpossible(errno)))
            continue;
        if (size < 0)
            return false;
        extended.emplace_back(name, std::string(m_value.data(), static_cast<std::size_t>(size)));
    }
    return true;
}

bool AttributeCopier::giveExtended(const Extended& extended, int to)
{
    m_hadNoRoom = false;
    return std::ranges::all_of(extended, [&](const auto& attribute) {
        const auto& [name, value] = attribute;
        if (m_calls.setAttribute(to, name.c_str(), value.data(), value.size()) == 0)
            return true;
        m_hadNoRoom |= isTooLarge(errno);
        return isTooLarge(errno) || isImpossible(errno);
    });
}

bool AttributeCopier::copyTimes(const struct stat& source, int folder, const char* name)
{
    return m_calls.setTimes(folder, name, {{source.st_atim, source.st_mtim}}) == 0 || isImpossible(errno);
}

} // namespace MenuExtension::Transfers
