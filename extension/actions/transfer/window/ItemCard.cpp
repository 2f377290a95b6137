#include "extension/actions/transfer/window/ItemCard.h"

#include "platform/linux/chooser/FileIcons.h"
#include "platform/linux/text/FileNameText.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QHBoxLayout>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <cctype>

namespace MenuExtension::Transfers {

namespace {

constexpr int pictureExtent = 64;

/// The picture that the file manager has made of a file, where that is of the file as it is; never made here, since
/// anything may be in a file.
QPixmap thumbnailOf(const Conflict::Side& side)
{
    QByteArray bytes = "file://";
    for (const char character : side.path) {
        const auto byte = static_cast<unsigned char>(character);
        const bool isPlain = QByteArrayView("/-._~!$&'()*+,;=:@").contains(character) ||
                             (byte < 0x80 && std::isalnum(byte) != 0);
        bytes += isPlain ? QByteArray(1, character) : '%' + QByteArray(1, character).toHex().toUpper();
    }
    const QString name =
        QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex()) + QStringLiteral(".png");
    const QString place = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    for (const char* size : {"normal", "large"}) {
        QImageReader reader(place + QStringLiteral("/thumbnails/") + QLatin1String(size) + u'/' + name, "png");
        const QImage image = reader.size().width() <= 1024 && reader.size().height() <= 1024 ? reader.read() : QImage();
        if (!image.isNull() && image.text(QStringLiteral("Thumb::MTime")).toLongLong() == side.status.st_mtim.tv_sec)
            return QPixmap::fromImage(image);
    }
    return {};
}

QPixmap pictureOf(const Conflict::Side& side, qreal ratio)
{
    const QSize extent(pictureExtent, pictureExtent);
    const QPixmap thumbnail = S_ISREG(side.status.st_mode) ? thumbnailOf(side) : QPixmap();
    if (!thumbnail.isNull()) {
        QPixmap scaled = thumbnail.scaled(extent * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        scaled.setDevicePixelRatio(ratio);
        return scaled;
    }
    LinuxDesktop::FileIcons icons;
    LinuxDesktop::FileEntry entry;
    entry.name = side.path.substr(side.path.rfind('/') + 1);
    entry.kind = S_ISDIR(side.status.st_mode) ? LinuxDesktop::FileEntry::Kind::Folder
                                              : LinuxDesktop::FileEntry::Kind::File;
    return icons.iconFor(entry, LinuxDesktop::fileNameText(entry.name)).pixmap(extent, ratio);
}

} // namespace

ItemCard::ItemCard(QWidget* parent)
    : QWidget(parent), m_picture(new QLabel(this)), m_which(new QLabel(this)), m_facts(new QLabel(this))
{
    m_picture->setFixedSize(pictureExtent, pictureExtent);
    m_picture->setAlignment(Qt::AlignCenter);
    QFont bold = m_which->font();
    bold.setWeight(QFont::DemiBold);
    m_which->setFont(bold);
    for (QLabel* label : {m_which, m_facts}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addStretch();
    texts->addWidget(m_which);
    texts->addWidget(m_facts);
    texts->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(14, 14, 14, 14);
    row->setSpacing(14);
    row->addWidget(m_picture);
    row->addLayout(texts, 1);
}

void ItemCard::show(const QString& which, const Conflict::Side& side)
{
    const QLocale locale;
    const QString size = S_ISDIR(side.status.st_mode) ? tr("Folder")
                         : S_ISLNK(side.status.st_mode)
                             ? tr("Link")
                             : locale.formattedDataSize(side.status.st_size);
    const QString date =
        locale.toString(QDateTime::fromSecsSinceEpoch(side.status.st_mtim.tv_sec), QLocale::ShortFormat);
    m_picture->setPixmap(pictureOf(side, devicePixelRatioF()));
    m_which->setText(which);
    m_facts->setText(tr("%1\nChanged %2").arg(size, date));
    setAccessibleName(which + u' ' + m_facts->text());
}

void ItemCard::paintEvent(QPaintEvent*)
{
    constexpr qreal corner = 8;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

} // namespace MenuExtension::Transfers
