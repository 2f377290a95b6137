#pragma once

#include <QString>

#include <sys/types.h>

namespace ProblemTool {

/// The panel whose fatal error this process was started for, or none. Make it first: the processes that this one
/// starts hear nothing of the error. Main thread.
class StoppedPanel {
public:
    StoppedPanel();

    /// What it said; empty where there is none.
    [[nodiscard]] const QString& words() const { return m_words; }
    /// Starts the panel again, on the tab of a title unless that is empty. False where it cannot be started.
    [[nodiscard]] bool openAgain(const QString& tab) const;

private:
    void waitForEnd() const;

    QString m_words;
    pid_t m_process;
};

} // namespace ProblemTool
