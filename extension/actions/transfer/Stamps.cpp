#include "extension/actions/transfer/Stamps.h"

#include <algorithm>
#include <array>

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

enum class StatusTime { Counts, Ignored };

std::uint64_t stampOf(const struct stat& status, StatusTime statusTime)
{
    const bool counts = statusTime == StatusTime::Counts;
    const std::array<std::uint64_t, 7> parts{
        static_cast<std::uint64_t>(status.st_dev),
        static_cast<std::uint64_t>(status.st_ino),
        static_cast<std::uint64_t>(status.st_size),
        static_cast<std::uint64_t>(status.st_mtim.tv_sec),
        static_cast<std::uint64_t>(status.st_mtim.tv_nsec),
        counts ? static_cast<std::uint64_t>(status.st_ctim.tv_sec) : 0,
        counts ? static_cast<std::uint64_t>(status.st_ctim.tv_nsec) : 0,
    };
    std::uint64_t stamp = 0;
    for (const std::uint64_t part : parts)
        stamp = mixed(stamp ^ part);
    return stamp;
}

/// The removal of one name is a change to the file's others.
StatusTime statusTimeOf(const struct stat& status)
{
    return status.st_nlink > 1 ? StatusTime::Ignored : StatusTime::Counts;
}

} // namespace

void Stamps::add(const struct stat& status)
{
    m_stamps.push_back(stampOf(status, statusTimeOf(status)));
    m_isSorted = false;
}

bool Stamps::contains(const struct stat& status)
{
    if (!m_isSorted)
        std::ranges::sort(m_stamps);
    m_isSorted = true;
    return std::ranges::binary_search(m_stamps, stampOf(status, StatusTime::Counts)) ||
           std::ranges::binary_search(m_stamps, stampOf(status, StatusTime::Ignored));
}

} // namespace MenuExtension::Transfers
