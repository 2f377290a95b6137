#pragma once

#include "platform/linux/system/Command.h"

#include <QString>

#include <functional>

class QObject;

namespace ProblemTool {

/// The panel whose fatal error this process was started for, or none. Make it first: the processes that this one
/// starts hear nothing of the error. Main thread.
class StoppedPanel {
public:
    StoppedPanel();

    /// What it said; empty where there is none.
    [[nodiscard]] const QString& words() const { return m_words; }
    /// Calls `ended` once its process has ended, unless `context` goes before; at once where it has. Whether it has.
    /// While its memory is written down it has its name on the session bus still, and another panel would leave the
    /// field to it.
    bool whenEnded(QObject& context, const std::function<void()>& ended) const;
    /// Starts the panel again, on the tab of a title unless that is empty. False where it cannot be started.
    [[nodiscard]] static bool openAgain(const QString& tab);

private:
    QString m_words;
    LinuxDesktop::Command::Process m_process;
};

} // namespace ProblemTool
