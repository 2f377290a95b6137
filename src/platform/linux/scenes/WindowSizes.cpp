#include "platform/linux/scenes/WindowSizes.h"

#include "platform/linux/system/FileDescriptor.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QScreen>
#include <QStringList>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace LinuxDesktop::WindowSizes {

namespace {

/// In bytes. What is longer is not from here.
constexpr qint64 longestFile = 16384;
/// Those that were used last are kept.
constexpr qsizetype mostLines = 32;
constexpr int longestSide = 32767;

QString folder()
{
    // A path that is not absolute is to be ignored.
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    return (QDir::isAbsolutePath(state) ? state : QDir::homePath() + QStringLiteral("/.local/state")) +
           QStringLiteral("/orvik-menu");
}

QString path()
{
    return folder() + QStringLiteral("/window-sizes");
}

/// A line is the window, its width and height, and the screen to its end.
QString beginning(const QString& window)
{
    return window + u' ';
}

QString end(const QScreen& screen)
{
    const QSize size = screen.size();
    return QStringLiteral(" %1x%2 %3").arg(size.width()).arg(size.height()).arg(screen.name().simplified());
}

QStringList storedLines()
{
    // Something else than a file could have nobody to write to it, and be waited for.
    const FileDescriptor descriptor(open(QFile::encodeName(path()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!descriptor || fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size > longestFile)
        return {};
    QFile file;
    if (!file.open(descriptor.get(), QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.read(longestFile)).split(u'\n', Qt::SkipEmptyParts);
}

std::optional<QSize> sizeIn(const QString& text)
{
    const QStringList sides = text.split(u'x');
    if (sides.size() != 2)
        return std::nullopt;
    const QSize size(sides.first().toInt(), sides.last().toInt());
    const bool isOne = size.width() > 0 && size.height() > 0 && std::max(size.width(), size.height()) <= longestSide;
    return isOne ? std::optional(size) : std::nullopt;
}

bool isFor(const QString& line, const QString& window, const QScreen& screen)
{
    const QString first = beginning(window);
    const QString last = end(screen);
    return line.size() > first.size() + last.size() && line.startsWith(first) && line.endsWith(last);
}

} // namespace

std::optional<QSize> remembered(const QString& window, const QScreen& screen)
{
    for (const QString& line : storedLines()) {
        if (isFor(line, window, screen))
            return sizeIn(line.sliced(beginning(window).size()).chopped(end(screen).size()));
    }
    return std::nullopt;
}

void remember(const QString& window, const QScreen& screen, QSize size)
{
    QStringList lines = storedLines();
    lines.removeIf([&](const QString& line) { return isFor(line, window, screen); });
    lines.append(beginning(window) + QStringLiteral("%1x%2").arg(size.width()).arg(size.height()) + end(screen));
    const QStringList kept = lines.last(std::min(lines.size(), mostLines));
    QSaveFile file(path());
    if (!QDir().mkpath(folder()) || !file.open(QIODevice::WriteOnly))
        return;
    file.write(kept.join(u'\n').toUtf8() + '\n');
    file.commit();
}

} // namespace LinuxDesktop::WindowSizes
