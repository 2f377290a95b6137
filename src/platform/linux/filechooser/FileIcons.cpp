#include "platform/linux/filechooser/FileIcons.h"

#include <QApplication>
#include <QMimeType>
#include <QStyle>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

QIcon themeIcon(const QString& name, const QString& genericName, QStyle::StandardPixmap fallback)
{
    QIcon icon = QIcon::fromTheme(name);
    if (icon.isNull())
        icon = QIcon::fromTheme(genericName);
    return icon.isNull() ? QApplication::style()->standardIcon(fallback) : icon;
}

} // namespace

QIcon FileIcons::iconFor(const FileEntry& entry, const QString& name)
{
    QString iconName;
    QString genericName = u"text-x-generic"_s;
    QStyle::StandardPixmap fallback = QStyle::SP_FileIcon;
    switch (entry.kind) {
    case FileEntry::Kind::Folder:
        iconName = genericName = u"folder"_s;
        fallback = QStyle::SP_DirIcon;
        break;
    case FileEntry::Kind::BrokenLink:
        iconName = u"emblem-symbolic-link"_s;
        fallback = QStyle::SP_FileLinkIcon;
        break;
    case FileEntry::Kind::File:
        const QMimeType type = m_types.mimeTypeForFile(name, QMimeDatabase::MatchExtension);
        iconName = type.iconName();
        genericName = type.genericIconName();
        break;
    }
    auto found = m_byName.constFind(iconName);
    if (found == m_byName.constEnd())
        found = m_byName.insert(iconName, themeIcon(iconName, genericName, fallback));
    return *found;
}

} // namespace LinuxDesktop
