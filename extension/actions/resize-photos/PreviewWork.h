#pragma once

#include "Wish.h"
#include "extension/actions/duplicates/BriefThread.h"

#include <QObject>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <stop_token>

namespace MenuExtension::Resizing {

/// What one photo of a request would become, to look at. The newest wish counts: what runs for another is ended. The
/// functions and signals are the main thread's.
class PreviewWork : public QObject {
    Q_OBJECT

public:
    /// The request outlives it.
    explicit PreviewWork(const Request& request);
    ~PreviewWork() override;

    /// Shows the photo at that place of the request in at most so many pixels each way.
    void show(std::size_t photo, const Wish& wish, std::uint32_t pixels);

signals:
    /// Comes first, and is about the photo as it is: both of the result are the same.
    void before(const MenuExtension::Resizing::Result& result);
    void after(const MenuExtension::Resizing::Result& result);

private:
    struct Task {
        std::size_t photo = 0;
        Wish wish;
        std::uint32_t pixels = 0;
        std::stop_token stop;
    };
    using Tell = void (PreviewWork::*)(const Result&);

    void run(const std::stop_token& stop);
    void preview(PhotoResizer& resizer, const Task& task);
    void tell(const Task& task, Result result, Tell signal);

    const Request& m_request;
    std::stop_source m_newest;

    std::mutex m_mutex;
    std::condition_variable_any m_asked;
    std::optional<Task> m_task;
    /// Last, so that it ends first.
    Duplicates::BriefThread m_thread;
};

} // namespace MenuExtension::Resizing
