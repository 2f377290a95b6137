#include "Resemblances.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace MenuExtension::SimilarPhotos {

std::uint32_t Clusters::of(std::uint32_t number)
{
    while (m_above.size() <= number)
        m_above.push_back(static_cast<std::uint32_t>(m_above.size()));
    while (m_above[number] != number) {
        m_above[number] = m_above[m_above[number]];
        number = m_above[number];
    }
    return number;
}

bool Clusters::join(std::uint32_t one, std::uint32_t other)
{
    const std::uint32_t first = of(one);
    const std::uint32_t second = of(other);
    if (first == second)
        return false;
    // The lowest number stands for all.
    m_above[std::max(first, second)] = std::min(first, second);
    return true;
}

void Resemblances::add(const Pair& pair)
{
    m_pairs.push_back(pair);
    m_areNeeded = false;
    constexpr std::size_t few = 1024;
    if (m_pairs.size() > 2 * m_kept + few)
        forgetNeedless();
}

const std::vector<Resemblances::Pair>& Resemblances::needed()
{
    if (!m_areNeeded)
        forgetNeedless();
    return m_pairs;
}

std::vector<std::vector<std::uint32_t>> Resemblances::groups(float limit)
{
    Clusters clusters;
    std::vector<std::uint32_t> members;
    for (const Pair& pair : needed()) {
        if (pair.difference > limit)
            break;
        clusters.join(pair.one, pair.other);
        members.push_back(pair.one);
        members.push_back(pair.other);
    }
    std::ranges::sort(members);
    members.erase(std::unique(members.begin(), members.end()), members.end());
    std::map<std::uint32_t, std::vector<std::uint32_t>> groups;
    for (const std::uint32_t member : members)
        groups[clusters.of(member)].push_back(member);
    std::vector<std::vector<std::uint32_t>> result;
    result.reserve(groups.size());
    for (auto& group : groups)
        result.push_back(std::move(group.second));
    return result;
}

/// A pair whose two are joined by pairs that are more alike says nothing for any limit.
void Resemblances::forgetNeedless()
{
    std::ranges::stable_sort(m_pairs, {}, &Pair::difference);
    // Those that are the same by pairs which say so, and of these the ones that have found their whole.
    Clusters same;
    for (const Pair& pair : m_pairs) {
        if (pair.part == Part::Neither)
            same.join(pair.one, pair.other);
    }
    std::set<std::uint32_t> parts;
    Clusters clusters;
    std::erase_if(m_pairs, [&](const Pair& pair) {
        if (pair.part == Part::Neither)
            return !clusters.join(pair.one, pair.other);
        const std::uint32_t part = same.of(pair.part == Part::One ? pair.one : pair.other);
        return parts.contains(part) || !clusters.join(pair.one, pair.other) || !parts.insert(part).second;
    });
    m_kept = m_pairs.size();
    m_areNeeded = true;
}

} // namespace MenuExtension::SimilarPhotos
