#include "extension/actions/transfer/window/TransferWork.h"

#include "extension/actions/files/Trash.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/resource.h>
#include <utility>

namespace MenuExtension::Transfers {

namespace {

/// Deep trees are walked with a folder open at each depth.
void allowManyOpenFiles()
{
    constexpr rlim_t many = 65'536;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur < many) {
        limit.rlim_cur = std::min(limit.rlim_max, many);
        static_cast<void>(::setrlimit(RLIMIT_NOFILE, &limit));
    }
}

} // namespace

TransferWork::TransferWork(const Request& request) : m_request(request), m_record(m_calls, recordPlaces())
{
    allowManyOpenFiles();
}

TransferWork::~TransferWork()
{
    cancel();
    if (m_thread.joinable())
        m_thread.join();
}

template<class Work>
void TransferWork::run(Work work, void (TransferWork::*ended)())
{
    if (m_thread.joinable())
        m_thread.join();
    m_isRunning = true;
    m_thread = std::thread([this, work, ended] {
        work();
        QMetaObject::invokeMethod(
            this,
            [this, ended] {
                m_isRunning = false;
                emit(this->*ended)();
            },
            Qt::QueuedConnection);
    });
}

void TransferWork::start(bool isMove, const std::string& target)
{
    Order order{.isMove = isMove, .items = {}, .target = target};
    for (const std::string& path : m_request.paths)
        order.items.push_back({path});
    const auto openFolderOf = [this](const std::string& item) { return openFolderOfItem(m_request, item, O_PATH); };
    Asked& asked = *this;
    m_transfer = std::make_unique<Transfer>(m_calls, m_record, openFolderOf, m_progress, asked);
    run(
        [this, order = std::move(order)] {
            m_record.removeLeftovers();
            m_result = m_transfer->run(order);
            m_canBeUndone = m_transfer->canBeUndone();
            m_hasReplaced = m_transfer->hasReplaced();
            m_firstPlaced = m_transfer->firstPlaced();
        },
        &TransferWork::finished);
}

void TransferWork::undo()
{
    m_canBeUndone = false;
    run([this] { m_result = m_transfer->undo(moveToTrash); }, &TransferWork::undone);
}

void TransferWork::answer(const Decision& decision)
{
    const std::lock_guard lock(m_mutex);
    m_answer = decision;
    m_answered.notify_one();
}

void TransferWork::cancel()
{
    m_progress.cancelled = true;
    answer({Resolution::Cancel});
}

Decision TransferWork::decide(const Conflict& conflict)
{
    return ask(conflict, &TransferWork::conflictMet);
}

bool TransferWork::goesOnWithout(const Problems& problems)
{
    return ask(problems, &TransferWork::problemsFound).resolution != Resolution::Cancel;
}

template<class Matter>
Decision TransferWork::ask(const Matter& matter, void (TransferWork::*question)(const Matter&))
{
    // A copy: where it is cancelled before the question has come, this thread has gone on.
    QMetaObject::invokeMethod(
        this,
        [this, matter, question] {
            if (!m_progress.cancelled)
                emit(this->*question)(matter);
        },
        Qt::QueuedConnection);
    return waitForAnswer();
}

Decision TransferWork::waitForAnswer()
{
    std::unique_lock lock(m_mutex);
    m_answered.wait(lock, [this] { return m_answer.has_value(); });
    // To be cancelled answers every question to come.
    return m_progress.cancelled ? *m_answer : *std::exchange(m_answer, std::nullopt);
}

} // namespace MenuExtension::Transfers
