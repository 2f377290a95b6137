#include "PhotoWork.h"

#include <utility>

namespace MenuExtension::Exif {

namespace {

/// Between two words on how far it is, after the first.
constexpr std::chrono::milliseconds pause{100};

} // namespace

PhotoWork::~PhotoWork()
{
    cancel();
}

void PhotoWork::cancel()
{
    if (m_thread.joinable()) {
        m_thread.request_stop();
        m_thread.join();
    }
    // What has been told and not yet heard is of another batch then.
    const std::lock_guard lock(m_mutex);
    ++m_batch;
    m_isSaving = false;
}

void PhotoWork::read(std::vector<std::size_t> photos)
{
    start(std::move(photos), [this](const std::vector<std::string>& paths, const std::stop_token& stop) {
        readPhotos(
            m_request, paths, [this](std::size_t place, const Reading& reading) { note(place, reading); }, stop);
    });
}

void PhotoWork::save(std::vector<std::size_t> photos, Edits edits, SaveOptions options)
{
    start(std::move(photos), [this, edits = std::move(edits), options](const std::vector<std::string>& paths,
                                                                       const std::stop_token& stop) {
        savePhotos(
            m_request, paths, edits, options,
            [this](std::size_t place, Trouble trouble) { note(place, {.tags = {}, .trouble = std::move(trouble)}); },
            stop);
    });
    m_isSaving = true;
}

void PhotoWork::start(std::vector<std::size_t> photos,
                      std::function<void(const std::vector<std::string>&, const std::stop_token&)> work)
{
    cancel();
    m_photos = std::move(photos);
    std::vector<std::string> paths;
    for (const std::size_t photo : m_photos)
        paths.push_back(m_request.paths[photo]);
    m_progress = {};
    m_progress.total = paths.size();
    m_told = {};
    m_isTelling = false;
    m_thread = std::jthread(
        [this, batch = m_batch, paths = std::move(paths), work = std::move(work)](const std::stop_token& stop) {
            work(paths, stop);
            tell(batch, true);
        });
}

void PhotoWork::note(std::size_t place, const Reading& reading)
{
    unsigned batch = 0;
    {
        const std::lock_guard lock(m_mutex);
        ++m_progress.done;
        if (reading.trouble)
            m_progress.failures.emplace_back(m_photos[place], reading.trouble);
        else
            m_progress.merged.add(reading.tags, reading.holdsMore);
        const auto now = std::chrono::steady_clock::now();
        if (m_isTelling || now - m_told < pause)
            return;
        m_isTelling = true;
        m_told = now;
        batch = m_batch;
    }
    tell(batch, false);
}

void PhotoWork::tell(unsigned batch, bool isEnd)
{
    QMetaObject::invokeMethod(
        this,
        [this, batch, isEnd] {
            Progress progress;
            {
                const std::lock_guard lock(m_mutex);
                if (batch != m_batch)
                    return;
                m_isTelling = false;
                progress = m_progress;
            }
            const bool wasSaving = isEnd && std::exchange(m_isSaving, false);
            if (!isEnd)
                emit advanced(progress);
            else if (wasSaving)
                emit wereSaved(progress);
            else
                emit wereRead(progress);
        },
        Qt::QueuedConnection);
}

} // namespace MenuExtension::Exif
