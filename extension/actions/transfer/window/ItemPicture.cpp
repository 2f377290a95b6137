#include "extension/actions/transfer/window/ItemPicture.h"

#include "platform/linux/chooser/FileIcons.h"
#include "platform/linux/text/FileNameText.h"

#include <QCryptographicHash>
#include <QImage>
#include <QImageReader>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTimer>

#include <cctype>

namespace MenuExtension::Transfers {

namespace {

constexpr int extent = 64;
/// For twice as many pixels, and a size that the makers of thumbnails have.
constexpr int imageExtent = 128;

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

} // namespace

ItemPicture::ItemPicture(QWidget* parent) : QLabel(parent)
{
    setFixedSize(extent, extent);
    setAlignment(Qt::AlignCenter);
}

ItemPicture::~ItemPicture() = default;

void ItemPicture::show(const Conflict::Side& side)
{
    m_ended.reset();
    m_reading.reset();
    setPixmap(iconOf(side).pixmap(QSize(extent, extent), devicePixelRatioF()));
    if (!S_ISREG(side.status.st_mode))
        return;
    const QImage thumbnail = thumbnailOf(side);
    if (!thumbnail.isNull())
        showImage(thumbnail);
    else if (PictureReading::isPicture(nameOf(side)))
        read(side);
}

void ItemPicture::showImage(const QImage& image)
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(
        image.scaled(QSize(extent, extent) * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    setPixmap(pixmap);
}

void ItemPicture::read(const Conflict::Side& side)
{
    m_reading.emplace(side.path, imageExtent);
    if (m_reading->ended() < 0)
        return;
    m_ended = std::make_unique<QSocketNotifier>(m_reading->ended(), QSocketNotifier::Read);
    connect(m_ended.get(), &QSocketNotifier::activated, this, [this] {
        m_ended->setEnabled(false);
        const QImage image = m_reading->picture();
        if (!image.isNull())
            showImage(image);
    });
    QTimer::singleShot(PictureReading::patience, m_ended.get(), [this] {
        m_ended->setEnabled(false);
        m_reading.reset();
    });
}

} // namespace MenuExtension::Transfers
