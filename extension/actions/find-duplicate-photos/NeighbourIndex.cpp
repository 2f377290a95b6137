#include "NeighbourIndex.h"

#include <algorithm>

namespace MenuExtension::SimilarPhotos {

namespace {

/// So few points are looked at one by one.
constexpr std::size_t leaf = 16;

} // namespace

struct NeighbourIndex::Search {
    const Signature& centre;
    float radius;
    std::vector<Neighbour> found = {};
};

void NeighbourIndex::add(std::uint32_t number, const Signature& signature)
{
    m_points.push_back({signature, number, 0});
    m_ends.push_back(m_points.size());
    const auto beginOf = [this](std::size_t tree) { return tree == 0 ? 0 : m_ends[tree - 1]; };
    bool hasGrown = false;
    while (m_ends.size() > 1) {
        const std::size_t last = m_ends.size() - 1;
        if (m_ends[last] - beginOf(last) < m_ends[last - 1] - beginOf(last - 1))
            break;
        m_ends.erase(m_ends.end() - 2);
        hasGrown = true;
    }
    if (hasGrown)
        build(beginOf(m_ends.size() - 1), m_points.size());
}

void NeighbourIndex::build(std::size_t begin, std::size_t end)
{
    while (end - begin > leaf) {
        Point& vantage = m_points[begin];
        for (std::size_t at = begin + 1; at < end; ++at)
            m_points[at].radius = distance(vantage.signature, m_points[at].signature);
        const std::size_t middle = begin + 1 + (end - begin - 1) / 2;
        const auto place = [this](std::size_t at) { return m_points.begin() + static_cast<std::ptrdiff_t>(at); };
        std::ranges::nth_element(place(begin + 1), place(middle), place(end), {}, &Point::radius);
        vantage.radius = m_points[middle].radius;
        build(begin + 1, middle);
        begin = middle;
    }
}

std::vector<NeighbourIndex::Neighbour> NeighbourIndex::within(const Signature& centre, float radius) const
{
    Search running{.centre = centre, .radius = radius};
    std::size_t begin = 0;
    for (const std::size_t end : m_ends) {
        search(begin, end, running);
        begin = end;
    }
    return std::move(running.found);
}

void NeighbourIndex::search(std::size_t begin, std::size_t end, Search& search) const
{
    const auto look = [&](const Point& point) {
        const float away = distance(search.centre, point.signature);
        ++m_measured;
        if (away <= search.radius)
            search.found.push_back({point.number, away});
        return away;
    };
    while (end - begin > leaf) {
        const Point& vantage = m_points[begin];
        const float away = look(vantage);
        const std::size_t middle = begin + 1 + (end - begin - 1) / 2;
        // Rounding must not hide a point at the very edge.
        constexpr float slack = 1e-5F;
        if (away - search.radius <= vantage.radius + slack)
            this->search(begin + 1, middle, search);
        if (away + search.radius < vantage.radius - slack)
            return;
        begin = middle;
    }
    for (std::size_t at = begin; at < end; ++at)
        look(m_points[at]);
}

} // namespace MenuExtension::SimilarPhotos
