#include "platform/linux/chooser/FileIcons.h"

#include <QApplication>
#include <QMimeType>
#include <QPainter>
#include <QPixmap>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

QStyle::StandardPixmap fallbackFor(FileEntry::Kind kind)
{
    switch (kind) {
    case FileEntry::Kind::Folder:
        return QStyle::SP_DirIcon;
    case FileEntry::Kind::BrokenLink:
    case FileEntry::Kind::File:
        break;
    }
    return QStyle::SP_FileIcon;
}

/// Icon themes draw an icon otherwise for each size, the small ones in outlines only, and at twice as many pixels
/// they take another. This one is drawn in full at every size and scale.
constexpr int drawnExtent = 64;

QPixmap drawn(const QIcon& icon, int extent)
{
    return icon.pixmap(QSize(extent, extent), 1.0);
}

/// An icon with the sign of a link in its corner.
QIcon linked(const QIcon& icon)
{
    QPixmap whole = drawn(icon, drawnExtent);
    constexpr int signExtent = drawnExtent / 2;
    QIcon sign = QIcon::fromTheme(u"emblem-symbolic-link"_s);
    if (sign.isNull())
        sign = QApplication::style()->standardIcon(QStyle::SP_FileLinkIcon);
    QPainter painter(&whole);
    painter.drawPixmap(drawnExtent - signExtent, drawnExtent - signExtent, drawn(sign, signExtent));
    painter.end();
    return whole;
}

} // namespace

QIcon FileIcons::themed(const QStringList& names, QStyle::StandardPixmap fallback)
{
    for (const QString& name : names) {
        if (const QIcon icon = QIcon::fromTheme(name); !icon.isNull())
            return drawn(icon, drawnExtent);
    }
    return drawn(QApplication::style()->standardIcon(fallback), drawnExtent);
}

QStringList FileIcons::iconNames(FileEntry::Kind kind, const QString& name) const
{
    switch (kind) {
    case FileEntry::Kind::Folder:
        return {u"folder"_s};
    case FileEntry::Kind::BrokenLink:
        return {u"unknown"_s, u"text-x-generic"_s};
    case FileEntry::Kind::File:
        break;
    }
    const QMimeType type = m_types.mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    return {type.iconName(), type.genericIconName(), u"text-x-generic"_s};
}

QIcon FileIcons::iconFor(const FileEntry& entry, const QString& name)
{
    const QStringList names = iconNames(entry.kind, name);
    const std::pair key(names.front(), entry.isLink);
    auto found = m_icons.constFind(key);
    if (found == m_icons.constEnd()) {
        const QIcon icon = themed(names, fallbackFor(entry.kind));
        found = m_icons.insert(key, entry.isLink ? linked(icon) : icon);
    }
    return *found;
}

QString FileIcons::kindName(const QString& name) const
{
    const QMimeType type = m_types.mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    return type.isDefault() ? QString() : type.comment();
}

} // namespace LinuxDesktop
