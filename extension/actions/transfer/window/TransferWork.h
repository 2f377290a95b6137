#pragma once

#include "extension/actions/support/Request.h"
#include "extension/actions/transfer/Transfer.h"

#include <QObject>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace MenuExtension::Transfers {

/// A transfer in a thread of its own, which waits where a person has to be asked. Main thread.
class TransferWork : public QObject, private Asked {
    Q_OBJECT

public:
    explicit TransferWork(const Request& request);
    /// Leaves what is not done, and waits until that has ended.
    ~TransferWork() override;

    /// Begins; what a killed process has left is cleared away first.
    void start(bool isMove, const std::string& target);
    /// Begins to put everything back, once a transfer has ended.
    void undo();

    /// To conflictMet().
    void answer(const Decision& decision);
    /// To problemsFound().
    void goOn() { answer({Resolution::KeepBoth}); }
    /// Leaves what is not done; the end is told all the same. Any question is answered by it.
    void cancel();

    [[nodiscard]] const Progress& progress() const { return m_progress; }
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// How it ended.
    [[nodiscard]] const Result& result() const { return m_result; }
    [[nodiscard]] bool canBeUndone() const { return m_canBeUndone; }
    /// Whether there is something that was replaced, and that only an Undo brings back.
    [[nodiscard]] bool hasReplaced() const { return m_hasReplaced; }
    /// The first item at the target, by its path there; empty where there is none.
    [[nodiscard]] const std::string& firstPlaced() const { return m_firstPlaced; }

signals:
    // What is cancelled asks nothing more.
    void conflictMet(const Conflict& conflict);
    /// Before anything is written: some items cannot be transferred.
    void problemsFound(const Problems& problems);
    void finished();
    void undone();

private:
    [[nodiscard]] Decision decide(const Conflict& conflict) override;
    [[nodiscard]] bool goesOnWithout(const Problems& problems) override;
    template<class Matter>
    [[nodiscard]] Decision ask(const Matter& matter, void (TransferWork::*question)(const Matter&));
    [[nodiscard]] Decision waitForAnswer();
    template<class Work>
    void run(Work work, void (TransferWork::*ended)());

    const Request m_request;
    SystemCalls m_calls;
    StagingRecord m_record;
    Progress m_progress;
    std::unique_ptr<Transfer> m_transfer;
    Result m_result;
    bool m_canBeUndone = false;
    bool m_hasReplaced = false;
    std::string m_firstPlaced;
    bool m_isRunning = false;
    std::thread m_thread;

    std::mutex m_mutex;
    std::condition_variable m_answered;
    std::optional<Decision> m_answer;
};

} // namespace MenuExtension::Transfers
