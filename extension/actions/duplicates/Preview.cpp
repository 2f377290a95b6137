#include "extension/actions/duplicates/Preview.h"

#include "platform/linux/system/FileDescriptor.h"
#include "platform/linux/text/FileNameText.h"

#include <QFile>
#include <QImageReader>
#include <QStringDecoder>
#include <QStringList>

#include <fcntl.h>
#include <sys/stat.h>

namespace MenuExtension::Duplicates {

namespace {

constexpr qsizetype longestText = 4096;
constexpr qsizetype mostLines = 40;
constexpr int mostMegabytes = 128;

QImage readPicture(QFile& file, QSize pixels)
{
    QImageReader::setAllocationLimit(mostMegabytes);
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    if (!reader.canRead())
        return {};
    QSize size = reader.size();
    // The picture may be turned by a quarter.
    const QSize room =
        reader.transformation() & QImageIOHandler::TransformationRotate90 ? pixels.transposed() : pixels;
    if (size.isValid() && (size.width() > room.width() || size.height() > room.height()))
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

QString readText(QFile& file)
{
    file.seek(0);
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

Preview readPreview(const std::string& path, QSize pixels)
{
    const LinuxDesktop::FileDescriptor descriptor(
        ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!descriptor || ::fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    QFile file;
    if (!file.open(descriptor.get(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return {};
    Preview preview{.picture = readPicture(file, pixels), .text = {}};
    if (preview.picture.isNull())
        preview.text = readText(file);
    return preview;
}

} // namespace MenuExtension::Duplicates
