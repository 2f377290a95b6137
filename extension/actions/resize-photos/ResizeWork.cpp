#include "ResizeWork.h"

namespace MenuExtension::Resizing {

namespace {

/// Between two words on how far it is, after the first.
constexpr std::chrono::milliseconds pause{100};

} // namespace

void ResizeWork::start(const Wish& wish, const Target& target)
{
    m_progress = {};
    m_told = {};
    m_isTelling = false;
    m_isWorking = true;
    static_cast<void>(m_thread.renew());
    m_thread.start([this, wish, target](const std::stop_token& stop) {
        resizePhotos(
            m_request, m_request.paths, wish.forEach(m_request), target,
            [this](std::size_t photo, Outcome outcome) { note(photo, std::move(outcome)); }, stop);
        {
            const std::lock_guard lock(m_mutex);
            m_progress.isCancelled = stop.stop_requested();
        }
        tell(true);
    });
}

void ResizeWork::note(std::size_t photo, Outcome outcome)
{
    {
        const std::lock_guard lock(m_mutex);
        switch (outcome.kind) {
        case Outcome::Kind::Cancelled:
            return;
        case Outcome::Kind::Done:
            ++m_progress.resized;
            m_progress.bytesBefore += outcome.before.bytes;
            m_progress.bytesAfter += outcome.after.bytes;
            break;
        case Outcome::Kind::SmallAlready:
            ++m_progress.smallAlready;
            break;
        default:
            m_progress.failures.emplace_back(photo, std::move(outcome));
        }
        ++m_progress.done;
        const auto now = std::chrono::steady_clock::now();
        if (m_isTelling || now - m_told < pause)
            return;
        m_isTelling = true;
        m_told = now;
    }
    tell(false);
}

void ResizeWork::tell(bool isEnd)
{
    QMetaObject::invokeMethod(
        this,
        [this, isEnd] {
            Progress progress;
            {
                const std::lock_guard lock(m_mutex);
                m_isTelling = false;
                progress = m_progress;
            }
            if (!isEnd) {
                emit advanced(progress);
                return;
            }
            m_thread.join();
            m_isWorking = false;
            emit ended(progress);
        },
        Qt::QueuedConnection);
}

} // namespace MenuExtension::Resizing
