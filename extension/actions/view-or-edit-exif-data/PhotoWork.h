#pragma once

#include "Batch.h"
#include "Merged.h"

#include <QObject>

#include <chrono>
#include <mutex>
#include <thread>

namespace MenuExtension::Exif {

/// Reads and saves photos in a thread of its own, one batch at a time, and tells how far it is in batches. The
/// functions and signals are the main thread's.
class PhotoWork : public QObject {
    Q_OBJECT

public:
    /// The request outlives it.
    explicit PhotoWork(const Request& request) : m_request(request) {}
    /// Ends what runs.
    ~PhotoWork() override;

    /// A failure by the photo's place in the request.
    using Failures = std::vector<std::pair<std::size_t, Trouble>>;
    struct Progress {
        std::size_t done = 0;
        std::size_t total = 0;
        /// Of all that was read so far.
        Merged merged;
        /// Of the whole batch so far.
        Failures failures;
    };

    /// By their places in the request. What runs is ended before.
    void read(std::vector<std::size_t> photos);
    void save(std::vector<std::size_t> photos, Edits edits, SaveOptions options);
    /// Ends what runs; it tells no more.
    void cancel();
    [[nodiscard]] bool isSaving() const { return m_isSaving; }

signals:
    void advanced(const MenuExtension::Exif::PhotoWork::Progress& progress);
    void wereRead(const MenuExtension::Exif::PhotoWork::Progress& progress);
    void wereSaved(const MenuExtension::Exif::PhotoWork::Progress& progress);

private:
    void start(std::vector<std::size_t> photos,
               std::function<void(const std::vector<std::string>& paths, const std::stop_token& stop)> work);
    /// From the threads that work.
    void note(std::size_t photo, const Reading& reading);
    void tell(unsigned batch, bool isEnd);

    const Request& m_request;
    bool m_isSaving = false;
    std::vector<std::size_t> m_photos;

    std::mutex m_mutex;
    Progress m_progress;
    bool m_isTelling = false;
    unsigned m_batch = 0;
    std::chrono::steady_clock::time_point m_told;
    std::jthread m_thread;
};

} // namespace MenuExtension::Exif
