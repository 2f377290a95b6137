#include "extensions/StartDetached.h"

#include "platform/linux/system/Command.h"

#include <QFile>
#include <QProcess>

namespace ExtensionsTool {

bool startDetached(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    QStringList environment;
    for (const std::string& variable : LinuxDesktop::Command::environment())
        environment.append(QFile::decodeName(variable.c_str()));
    process.setEnvironment(environment);
    process.setWorkingDirectory(QStringLiteral("/"));
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace ExtensionsTool
