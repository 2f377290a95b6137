#include "problem/StoppedPanel.h"

#include "platform/linux/program/LastWords.h"
#include "platform/linux/system/Command.h"

#include <QCoreApplication>
#include <QFile>

#include <chrono>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ProblemTool {

namespace Command = LinuxDesktop::Command;

StoppedPanel::StoppedPanel() : m_words(qEnvironmentVariable(LinuxDesktop::fatalErrorVariable)), m_process(::getppid())
{
    qunsetenv(LinuxDesktop::fatalErrorVariable);
}

bool StoppedPanel::openAgain(const QString& tab) const
{
    waitForEnd();
    const std::string program =
        QFile::encodeName(QCoreApplication::applicationDirPath() + QStringLiteral("/orvik-menu")).toStdString();
    std::vector<std::string> arguments{program};
    if (!tab.isEmpty()) {
        arguments.emplace_back("--tab");
        arguments.push_back(tab.toStdString());
    }
    return Command::start(program, std::move(arguments), Command::environment()).has_value();
}

/// While its memory is written down it has its name on the session bus still, and another panel would leave the field
/// to it.
void StoppedPanel::waitForEnd() const
{
    constexpr std::chrono::milliseconds pause{50};
    constexpr int mostPauses = 100;
    for (int i = 0; i < mostPauses && !m_words.isEmpty() && ::getppid() == m_process; ++i)
        std::this_thread::sleep_for(pause);
}

} // namespace ProblemTool
