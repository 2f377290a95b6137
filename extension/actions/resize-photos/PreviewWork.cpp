#include "PreviewWork.h"
#include "platform/LocalizedString.h"

#include <utility>

namespace MenuExtension::Resizing {

PreviewWork::PreviewWork(const Request& request) : m_request(request)
{
    m_thread.start([this](const std::stop_token& stop) { run(stop); });
}

PreviewWork::~PreviewWork()
{
    m_newest.request_stop();
}

void PreviewWork::show(std::size_t photo, const Wish& wish, std::uint32_t pixels)
{
    m_newest.request_stop();
    m_newest = {};
    const std::lock_guard lock(m_mutex);
    m_task = Task{photo, wish, pixels, m_newest.get_token()};
    m_asked.notify_one();
}

void PreviewWork::run(const std::stop_token& stop)
{
    PhotoResizer resizer;
    while (!stop.stop_requested()) {
        Task task;
        {
            std::unique_lock lock(m_mutex);
            if (!m_asked.wait(lock, stop, [this] { return m_task.has_value(); }))
                return;
            task = *std::exchange(m_task, std::nullopt);
        }
        preview(resizer, task);
    }
}

void PreviewWork::preview(PhotoResizer& resizer, const Task& task)
{
    const auto photo = openWithFolder(m_request, m_request.paths[task.photo]);
    if (!photo) {
        tell(task, Refused{NS::LocalizedString("Photos", "cannot be opened")}, &PreviewWork::before);
        return;
    }
    const auto ask = [&](const Goal& goal) {
        auto result = resizer.preview(*photo, goal, task.pixels, task.stop);
        return result ? *std::move(result)
                      : Refused{NS::LocalizedString("Photos", "cannot be shown: it takes too much time or memory")};
    };
    // As it is needs no more than a look.
    Result asItIs = ask({Goal::Kind::Percent, 100});
    const bool isReadable = std::holds_alternative<Resized>(asItIs);
    tell(task, std::move(asItIs), &PreviewWork::before);
    if (isReadable && !task.stop.stop_requested())
        tell(task, ask(task.wish.forEach(m_request)), &PreviewWork::after);
}

void PreviewWork::tell(const Task& task, Result result, Tell signal)
{
    QMetaObject::invokeMethod(
        this,
        [this, stop = task.stop, result = std::move(result), signal] {
            if (!stop.stop_requested())
                emit(this->*signal)(result);
        },
        Qt::QueuedConnection);
}

} // namespace MenuExtension::Resizing
