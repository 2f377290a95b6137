#include "extension/actions/transfer/Stamps.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

namespace MenuExtension::Transfers {

namespace {

/// One step of SplitMix64, which spreads every bit over all.
std::uint64_t mixed(std::uint64_t value)
{
    value += 0x9e3779b97f4a7c15U;
    value = (value ^ (value >> 30U)) * 0xbf58476d1ce4e5b9U;
    value = (value ^ (value >> 27U)) * 0x94d049bb133111ebU;
    return value ^ (value >> 31U);
}

/// Of a file of several names, whose others change the time of its status when they go.
std::uint64_t stampOfName(ino_t folder, const char* name)
{
    return mixed(folder ^ std::hash<std::string_view>()(name));
}

std::uint64_t stampOfTime(const struct stat& status)
{
    return mixed(static_cast<std::uint64_t>(status.st_ctim.tv_sec) ^
                 mixed(static_cast<std::uint64_t>(status.st_ctim.tv_nsec)));
}

std::uint64_t stampOf(const struct stat& status, std::uint64_t rest)
{
    const std::array<std::uint64_t, 6> parts{
        rest,
        static_cast<std::uint64_t>(status.st_dev),
        static_cast<std::uint64_t>(status.st_ino),
        static_cast<std::uint64_t>(status.st_size),
        static_cast<std::uint64_t>(status.st_mtim.tv_sec),
        static_cast<std::uint64_t>(status.st_mtim.tv_nsec),
    };
    std::uint64_t stamp = 0;
    for (const std::uint64_t part : parts)
        stamp = mixed(stamp ^ part);
    return stamp;
}

} // namespace

void Stamps::add(const struct stat& status, ino_t folder, const char* name)
{
    m_stamps.push_back(stampOf(status, status.st_nlink > 1 ? stampOfName(folder, name) : stampOfTime(status)));
    m_isSorted = false;
}

bool Stamps::contains(const struct stat& status, ino_t folder, const char* name)
{
    if (!m_isSorted)
        std::ranges::sort(m_stamps);
    m_isSorted = true;
    // It may be the last name of several by now.
    return std::ranges::binary_search(m_stamps, stampOf(status, stampOfName(folder, name))) ||
           std::ranges::binary_search(m_stamps, stampOf(status, stampOfTime(status)));
}

} // namespace MenuExtension::Transfers
