#include "extension/actions/duplicates/FindingsQueue.h"

namespace MenuExtension::Duplicates {

namespace {

constexpr std::size_t mostItems = 20'000;
/// There may be millions, and nobody reads more.
constexpr std::size_t mostTroubles = 1000;

} // namespace

FindingsQueue::FindingsQueue(std::function<void()> wake, std::stop_token stop)
    : m_wake(std::move(wake)), m_stop(std::move(stop))
{}

template<typename Change>
void FindingsQueue::tell(const Change& change)
{
    bool isFirst = false;
    {
        const std::scoped_lock lock(m_mutex);
        change();
        isFirst = !std::exchange(m_hasNews, true);
    }
    if (isFirst)
        m_wake();
}

void FindingsQueue::found(std::uint64_t group, std::vector<Item> items)
{
    tell([&] {
        m_items += items.size();
        m_batch.groups.emplace_back(group, std::move(items));
    });
    std::unique_lock lock(m_mutex);
    m_taken.wait(lock, m_stop, [this] { return m_items < mostItems; });
}

void FindingsQueue::progress(const Progress& progress)
{
    tell([&] { m_batch.progress = progress; });
}

void FindingsQueue::trouble(const std::string& path, const std::string& why)
{
    tell([&] {
        if (m_batch.troubles.size() < mostTroubles)
            m_batch.troubles.emplace_back(path, why);
    });
}

void FindingsQueue::end()
{
    tell([this] { m_batch.hasEnded = true; });
}

FindingsQueue::Batch FindingsQueue::take()
{
    const std::scoped_lock lock(m_mutex);
    m_items = 0;
    m_hasNews = false;
    m_taken.notify_all();
    return std::exchange(m_batch, {});
}

} // namespace MenuExtension::Duplicates
