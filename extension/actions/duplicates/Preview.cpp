#include "extension/actions/duplicates/Preview.h"

#include "extension/actions/window/PictureReading.h"
#include "platform/linux/system/FileDescriptor.h"
#include "platform/linux/text/FileNameText.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringList>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace MenuExtension::Duplicates {

namespace {

constexpr qsizetype longestText = 4096;
constexpr qsizetype mostLines = 40;

QImage readPicture(const std::string& path, QSize pixels, const std::stop_token& stop)
{
    const QString name = QString::fromStdString(path.substr(path.rfind('/') + 1));
    if (!PictureReading::isPicture(name) || stop.stop_requested())
        return {};
    const QImage picture = PictureReading(path, std::max(pixels.width(), pixels.height())).wait(stop);
    const bool fits = picture.width() <= pixels.width() && picture.height() <= pixels.height();
    return fits ? picture : picture.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QString readText(QFile& file)
{
    const QByteArray beginning = file.read(longestText);
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(beginning);
    if (decode.hasError() || beginning.contains('\0'))
        return {};
    QStringList lines = text.split(u'\n').mid(0, mostLines);
    for (QString& line : lines)
        line = LinuxDesktop::fileNameText(line.toStdString());
    return lines.join(u'\n');
}

} // namespace

Preview readPreview(const std::string& path, QSize pixels, const std::stop_token& stop)
{
    const LinuxDesktop::FileDescriptor descriptor(
        ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!descriptor || ::fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    QFile file;
    if (!file.open(descriptor.get(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return {};
    Preview preview{.picture = readPicture(path, pixels, stop), .text = {}};
    if (preview.picture.isNull())
        preview.text = readText(file);
    return preview;
}

} // namespace MenuExtension::Duplicates
