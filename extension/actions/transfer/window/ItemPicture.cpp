#include "extension/actions/transfer/window/ItemPicture.h"

#include "platform/linux/chooser/FileIcons.h"
#include "platform/linux/text/FileNameText.h"

#include <QCryptographicHash>
#include <QImage>
#include <QImageReader>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <cctype>
#include <sys/resource.h>

namespace MenuExtension::Transfers {

namespace {

constexpr int extent = 64;
/// For twice as many pixels, and a size that the makers of thumbnails have.
constexpr int imageExtent = 128;
constexpr int patience = 10'000;
constexpr rlim_t mostSeconds = 10;
constexpr rlim_t mostMemory = rlim_t{1} << 30U;
constexpr rlim_t mostWritten = rlim_t{1} << 20U;

QByteArray addressOf(const std::string& path)
{
    QByteArray address = "file://";
    for (const char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        const bool isPlain =
            QByteArrayView("/-._~!$&'()*+,;=:@").contains(character) || (byte < 0x80 && std::isalnum(byte) != 0);
        address += isPlain ? QByteArray(1, character) : '%' + QByteArray(1, character).toHex().toUpper();
    }
    return address;
}

/// A picture that another program has made; null where it is none.
QImage readImage(const QString& path)
{
    constexpr int largest = 1024;
    QImageReader reader(path, "png");
    return reader.size().width() <= largest && reader.size().height() <= largest ? reader.read() : QImage();
}

/// The one that the file manager has made of a file, where that is of the file as it is.
QImage thumbnailOf(const Conflict::Side& side)
{
    const auto hash = QCryptographicHash::hash(addressOf(side.path), QCryptographicHash::Md5);
    const QString place = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    for (const char* size : {"normal", "large"}) {
        QImage image = readImage(place + QStringLiteral("/thumbnails/") + QLatin1String(size) + u'/' +
                                 QString::fromLatin1(hash.toHex()) + QStringLiteral(".png"));
        if (!image.isNull() && image.text(QStringLiteral("Thumb::MTime")).toLongLong() == side.status.st_mtim.tv_sec)
            return image;
    }
    return {};
}

QString nameOf(const Conflict::Side& side)
{
    return LinuxDesktop::fileNameText(side.path.substr(side.path.rfind('/') + 1));
}

QIcon iconOf(const Conflict::Side& side)
{
    LinuxDesktop::FileIcons icons;
    LinuxDesktop::FileEntry entry;
    entry.name = side.path.substr(side.path.rfind('/') + 1);
    entry.kind =
        S_ISDIR(side.status.st_mode) ? LinuxDesktop::FileEntry::Kind::Folder : LinuxDesktop::FileEntry::Kind::File;
    return icons.iconFor(entry, nameOf(side));
}

void boundProcess()
{
    const auto bound = [](auto resource, rlim_t most) {
        const rlimit limit{most, most};
        static_cast<void>(::setrlimit(resource, &limit));
    };
    bound(RLIMIT_AS, mostMemory);
    bound(RLIMIT_CPU, mostSeconds);
    bound(RLIMIT_FSIZE, mostWritten);
}

} // namespace

ItemPicture::ItemPicture(QWidget* parent) : QLabel(parent)
{
    setFixedSize(extent, extent);
    setAlignment(Qt::AlignCenter);
}

ItemPicture::~ItemPicture() = default;

void ItemPicture::show(const Conflict::Side& side)
{
    m_maker.reset();
    setPixmap(iconOf(side).pixmap(QSize(extent, extent), devicePixelRatioF()));
    if (!S_ISREG(side.status.st_mode))
        return;
    const QImage thumbnail = thumbnailOf(side);
    if (!thumbnail.isNull())
        showImage(thumbnail);
    else if (QMimeDatabase()
                 .mimeTypeForFile(nameOf(side), QMimeDatabase::MatchExtension)
                 .name()
                 .startsWith(u"image/"))
        makeImage(side);
}

void ItemPicture::showImage(const QImage& image)
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(
        image.scaled(QSize(extent, extent) * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    setPixmap(pixmap);
}

/// Another program reads the file, within bounds: anything may be in it.
void ItemPicture::makeImage(const Conflict::Side& side)
{
    m_folder = std::make_unique<QTemporaryDir>();
    const QString made = m_folder->filePath(QStringLiteral("picture.png"));
    m_maker = std::make_unique<QProcess>();
    m_maker->setChildProcessModifier(boundProcess);
    connect(m_maker.get(), &QProcess::finished, this, [this, made](int status) {
        const QImage image = status == 0 ? readImage(made) : QImage();
        if (!image.isNull())
            showImage(image);
    });
    QTimer::singleShot(patience, m_maker.get(), &QProcess::kill);
    m_maker->start(QStringLiteral("gdk-pixbuf-thumbnailer"), {QStringLiteral("-s"), QString::number(imageExtent),
                                                              QString::fromLatin1(addressOf(side.path)), made});
}

} // namespace MenuExtension::Transfers
