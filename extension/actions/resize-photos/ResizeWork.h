#pragma once

#include "Wish.h"
#include "extension/actions/duplicates/BriefThread.h"

#include <QObject>

#include <chrono>
#include <mutex>
#include <utility>
#include <vector>

namespace MenuExtension::Resizing {

/// Resizes all photos of a request in threads of its own, and tells how far it is in batches. The functions and
/// signals are the main thread's.
class ResizeWork : public QObject {
    Q_OBJECT

public:
    /// The request outlives it.
    explicit ResizeWork(const Request& request) : m_request(request) {}

    struct Progress {
        std::size_t done = 0;
        std::size_t resized = 0;
        std::size_t smallAlready = 0;
        /// Of those that were resized.
        std::uint64_t bytesBefore = 0;
        std::uint64_t bytesAfter = 0;
        /// By the photo's place in the request.
        std::vector<std::pair<std::size_t, Outcome>> failures;
        bool isCancelled = false;
    };

    /// Not while it works.
    void start(const Wish& wish, const Target& target);
    /// It tells its end soon.
    void cancel() { m_thread.requestStop(); }
    [[nodiscard]] bool isWorking() const { return m_isWorking; }

signals:
    void advanced(const MenuExtension::Resizing::ResizeWork::Progress& progress);
    void ended(const MenuExtension::Resizing::ResizeWork::Progress& progress);

private:
    /// From the threads that work, one at a time.
    void note(std::size_t photo, Outcome outcome);
    void tell(bool isEnd);

    const Request& m_request;
    bool m_isWorking = false;

    std::mutex m_mutex;
    Progress m_progress;
    bool m_isTelling = false;
    std::chrono::steady_clock::time_point m_told;
    /// Last, so that it ends first.
    Duplicates::BriefThread m_thread;
};

} // namespace MenuExtension::Resizing
