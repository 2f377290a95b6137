#include "platform/linux/chooser/FileIcons.h"

#include <QApplication>
#include <QMimeType>
#include <QStyle>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

QStyle::StandardPixmap fallbackFor(FileEntry::Kind kind)
{
    switch (kind) {
    case FileEntry::Kind::Folder:
        return QStyle::SP_DirIcon;
    case FileEntry::Kind::BrokenLink:
        return QStyle::SP_FileLinkIcon;
    case FileEntry::Kind::File:
        break;
    }
    return QStyle::SP_FileIcon;
}

QIcon themeIcon(const QStringList& names, FileEntry::Kind kind)
{
    for (const QString& name : names) {
        if (const QIcon icon = QIcon::fromTheme(name); !icon.isNull())
            return icon;
    }
    return QApplication::style()->standardIcon(fallbackFor(kind));
}

} // namespace

QStringList FileIcons::iconNames(FileEntry::Kind kind, const QString& name) const
{
    switch (kind) {
    case FileEntry::Kind::Folder:
        return {u"folder"_s};
    case FileEntry::Kind::BrokenLink:
        return {u"emblem-symbolic-link"_s, u"text-x-generic"_s};
    case FileEntry::Kind::File:
        break;
    }
    const QMimeType type = m_types.mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    return {type.iconName(), type.genericIconName(), u"text-x-generic"_s};
}

QIcon FileIcons::iconFor(const FileEntry& entry, const QString& name)
{
    const QStringList names = iconNames(entry.kind, name);
    auto found = m_byName.constFind(names.front());
    if (found == m_byName.constEnd())
        found = m_byName.insert(names.front(), themeIcon(names, entry.kind));
    return *found;
}

} // namespace LinuxDesktop
