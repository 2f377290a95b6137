#include "extension/bridges/dolphin/ItemPath.h"

#include <QByteArray>
#include <QChar>
#include <QString>

namespace DolphinBridge {

namespace {

/// What KIO makes of the bytes from 0x80 on in a file name that is not UTF-8: U+10FE00 and on, in a name that has no
/// other characters but those of ASCII. It takes them back to these bytes when it opens the file.
constexpr uint firstStandIn = 0x10FE00;
constexpr uint lastStandIn = 0x10FE7F;
constexpr char32_t firstByte = 0x80;

bool isStandIn(uint character)
{
    return character >= firstStandIn && character <= lastStandIn;
}

/// The bytes of one component, which is UTF-8.
QByteArray bytesOf(const QByteArray& component)
{
    const QVector<uint> characters = QString::fromUtf8(component).toUcs4();
    QByteArray bytes;
    bool standsForBytes = false;
    for (const uint character : characters) {
        if (isStandIn(character)) {
            bytes += static_cast<char>(character - firstStandIn + firstByte);
            standsForBytes = true;
        } else if (character < firstByte) {
            bytes += static_cast<char>(character);
        } else {
            return component;
        }
    }
    return standsForBytes ? bytes : component;
}

} // namespace

std::optional<std::string> pathOf(const QUrl& address)
{
    if (!address.isLocalFile() || !address.host().isEmpty())
        return std::nullopt;
    // Encoded, since decoding loses what is not UTF-8.
    const QByteArray path = QByteArray::fromPercentEncoding(address.path(QUrl::FullyEncoded).toLatin1());
    if (!path.startsWith('/') || path.contains('\0'))
        return std::nullopt;
    // The first byte of every stand-in.
    if (!path.contains('\xf4'))
        return path.toStdString();
    std::string bytes;
    for (const QByteArray& component : path.mid(1).split('/'))
        bytes += '/' + bytesOf(component).toStdString();
    return bytes;
}

} // namespace DolphinBridge
