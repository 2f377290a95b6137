#include "problem/StoppedPanel.h"

#include "platform/linux/program/LastWords.h"

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>

#include <poll.h>
#include <string>
#include <utility>
#include <vector>

namespace ProblemTool {

namespace Command = LinuxDesktop::Command;

StoppedPanel::StoppedPanel()
    : m_words(qEnvironmentVariable(LinuxDesktop::fatalErrorVariable)),
      m_process(qEnvironmentVariableIntValue(LinuxDesktop::fatalProcessVariable))
{
    qunsetenv(LinuxDesktop::fatalErrorVariable);
    qunsetenv(LinuxDesktop::fatalProcessVariable);
}

bool StoppedPanel::whenEnded(QObject& context, const std::function<void()>& ended) const
{
    // Of no file nothing is told.
    pollfd process{m_process.ended().get(), POLLIN, 0};
    if (process.fd < 0 || ::poll(&process, 1, 0) > 0) {
        ended();
        return true;
    }
    auto* end = new QSocketNotifier(process.fd, QSocketNotifier::Read, &context);
    QObject::connect(end, &QSocketNotifier::activated, &context, [end, ended] {
        end->setEnabled(false);
        end->deleteLater();
        ended();
    });
    return false;
}

bool StoppedPanel::openAgain(const QString& tab)
{
    const std::string program =
        QFile::encodeName(QCoreApplication::applicationDirPath() + QStringLiteral("/orvik-menu")).toStdString();
    std::vector<std::string> arguments{program};
    if (!tab.isEmpty()) {
        arguments.emplace_back("--tab");
        arguments.push_back(tab.toStdString());
    }
    return Command::start(program, std::move(arguments), Command::environment()).has_value();
}

} // namespace ProblemTool
