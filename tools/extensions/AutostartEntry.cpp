#include "extensions/AutostartEntry.h"

#include "extensions/DesktopEntryText.h"
#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/ReplaceFile.h"
#include "platform/linux/store/SettingsFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <string>
#include <sys/stat.h>
#include <utility>

namespace ExtensionsTool {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(AutostartEntry)
};

QString folderIn(const QString& configuration)
{
    return QDir::cleanPath(configuration) + QStringLiteral("/autostart");
}

/// Whether a program that an entry names is there to be started.
bool isThere(const QString& program)
{
    return QDir::isAbsolutePath(program) ? QFileInfo(program).isExecutable()
                                         : !QStandardPaths::findExecutable(program).isEmpty();
}

/// Of an entry that is there: whether it starts its program.
bool startsProgram(const QByteArray& entry)
{
    using DesktopEntryText::value;
    const auto tried = value(entry, QStringLiteral("TryExec"));
    return value(entry, QStringLiteral("Exec")) && (!tried || isThere(*tried)) &&
           value(entry, QStringLiteral("Hidden")).value_or(QString()) != QLatin1String("true") &&
           // What the settings of some desktops write to switch an entry off.
           value(entry, QStringLiteral("X-GNOME-Autostart-enabled")).value_or(QString()) != QLatin1String("false");
}

/// Nothing where there is no file.
std::optional<QByteArray> contentsOf(const QString& path)
{
    // A pipe in the entry's place would keep whoever opens it.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

QString asSentence(QString failure)
{
    failure[0] = failure[0].toUpper();
    return failure + u'.';
}

} // namespace

AutostartFolders autostartFolders()
{
    QString own = qEnvironmentVariable("XDG_CONFIG_HOME");
    // What is not absolute is to be ignored.
    if (!QDir::isAbsolutePath(own))
        own = QDir::homePath() + QStringLiteral("/.config");
    QString others = qEnvironmentVariable("XDG_CONFIG_DIRS");
    if (others.isEmpty())
        others = QStringLiteral("/etc/xdg");
    AutostartFolders folders{.own = folderIn(own), .systemWide = {}};
    for (const QString& other : others.split(u':')) {
        if (QDir::isAbsolutePath(other))
            folders.systemWide.append(folderIn(other));
    }
    return folders;
}

AutostartEntry::AutostartEntry(AutostartFolders folders, Extension extension)
    : m_folders(std::move(folders)), m_extension(std::move(extension))
{}

QString AutostartEntry::path() const
{
    return m_folders.own + u'/' + m_extension.identifier + QStringLiteral(".desktop");
}

bool AutostartEntry::isOn() const
{
    const auto entry = contentsOf(path());
    return entry ? startsProgram(*entry) : isSystemWide();
}

/// The first folder that has an entry of the name counts, whatever the entry says.
bool AutostartEntry::isSystemWide() const
{
    for (const QString& folder : m_folders.systemWide) {
        if (const auto entry = contentsOf(folder + u'/' + m_extension.identifier + QStringLiteral(".desktop")))
            return startsProgram(*entry);
    }
    return false;
}

std::optional<QString> AutostartEntry::switchOn()
{
    using DesktopEntryText::escaped;
    return write(QStringLiteral("[Desktop Entry]\n"
                                "Type=Application\n"
                                "Name=%1\n"
                                "Comment=%2\n"
                                "Exec=%3\n"
                                "TryExec=%4\n"
                                "Icon=%5\n"
                                "NoDisplay=true\n"
                                "Terminal=false\n")
                     .arg(escaped(m_extension.title), escaped(m_extension.explanation),
                          DesktopEntryText::commandOf(m_extension.program), escaped(m_extension.program),
                          escaped(m_extension.icon)));
}

std::optional<QString> AutostartEntry::switchOff()
{
    if (isSystemWide())
        return write(QStringLiteral("[Desktop Entry]\n"
                                    "Type=Application\n"
                                    "Name=%1\n"
                                    "Hidden=true\n")
                         .arg(DesktopEntryText::escaped(m_extension.title)));
    QFile file(path());
    if (file.remove() || !file.exists())
        return std::nullopt;
    return Texts::tr("Could not remove %1: %2.").arg(path(), file.errorString());
}

/// Whatever is in the entry's place is replaced itself: what a link leads to is somebody else's.
std::optional<QString> AutostartEntry::write(const QString& entry) const
{
    LinuxDesktop::FileOperations operations;
    if (const auto failure = LinuxDesktop::makeFolders(operations, QFile::encodeName(m_folders.own).toStdString()))
        return asSentence(QString::fromStdString(failure->what));

    const std::string file = QFile::encodeName(path()).toStdString();
    const std::string prefix = m_extension.identifier.toStdString() + ".new-";
    const auto written = LinuxDesktop::replaceFile(operations, {entry.toStdString(), file, prefix});
    constexpr mode_t readableByAll = 0644;
    if (written && ::fchmod(written->get(), readableByAll) == 0)
        return std::nullopt;
    const QString why =
        written ? qt_error_string() : QString::fromStdString(written.error()).section(QStringLiteral(": "), -1);
    return Texts::tr("Could not write %1: %2.").arg(path(), why);
}

} // namespace ExtensionsTool
