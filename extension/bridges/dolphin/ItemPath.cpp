#include "extension/bridges/dolphin/ItemPath.h"

#include <QByteArray>
#include <QChar>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QVector>

namespace DolphinBridge {

namespace {

/// What KIO, where it lists folders in a process of its own, makes of the bytes from 0x80 on in a name that is not
/// UTF-8: U+10FE00 and on, beside nothing but ASCII. It takes them back to these bytes when it opens the file.
constexpr uint firstStandIn = 0x10FE00;
constexpr uint lastStandIn = 0x10FE7F;
constexpr uint firstByte = 0x80;

/// The bytes that stand-ins stand for; nothing where there are none, or other characters too.
std::optional<std::string> bytesStoodFor(const QString& component)
{
    const QVector<uint> characters = component.toUcs4();
    std::string bytes;
    bool found = false;
    for (const uint character : characters) {
        const bool isStandIn = character >= firstStandIn && character <= lastStandIn;
        if (!isStandIn && character >= firstByte)
            return std::nullopt;
        bytes += static_cast<char>(isStandIn ? character - firstStandIn + firstByte : character);
        found = found || isStandIn;
    }
    return found ? std::optional(bytes) : std::nullopt;
}

std::optional<std::string> bytesOf(const QString& component)
{
    if (const auto bytes = bytesStoodFor(component))
        return bytes;
    const QByteArray bytes = QFile::encodeName(component);
    return QFile::decodeName(bytes) == component ? std::optional(bytes.toStdString()) : std::nullopt;
}

} // namespace

std::optional<std::string> pathOf(const QUrl& address)
{
    if (!address.isLocalFile() || !address.host().isEmpty())
        return std::nullopt;
    const QString path = address.path(QUrl::FullyDecoded);
    // Where KIO lists folders in the host, this stands for bytes that are not known any more.
    if (!path.startsWith(QLatin1Char('/')) || path.contains(QChar::ReplacementCharacter) ||
        path.contains(QChar::Null))
        return std::nullopt;
    std::string bytes;
    const QVector<QStringRef> components = path.midRef(1).split(QLatin1Char('/'));
    for (const QStringRef& component : components) {
        const auto part = bytesOf(component.toString());
        if (!part)
            return std::nullopt;
        bytes += '/' + *part;
    }
    return bytes;
}

} // namespace DolphinBridge
