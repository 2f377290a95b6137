#pragma once

#include "platform/linux/chooser/FolderListing.h"

#include <QHash>
#include <QIcon>
#include <QMimeDatabase>
#include <QString>
#include <QStringList>
#include <QStyle>

#include <utility>

namespace LinuxDesktop {

/// The size of icons in the chooser's lists.
inline constexpr QSize rowIconSize(24, 24);

/// Icons and kinds of files by their kind and name alone; no file is opened. Main thread.
class FileIcons {
public:
    /// Names in icon themes, best first.
    [[nodiscard]] QStringList iconNames(FileEntry::Kind kind, const QString& name) const;
    [[nodiscard]] QIcon iconFor(const FileEntry& entry, const QString& name);
    /// What kind of file it is, in words, as in "PDF document"; empty where the name does not say.
    [[nodiscard]] QString kindName(const QString& name) const;
    /// The first of the theme's icons that is there, in one style at every size.
    [[nodiscard]] static QIcon themed(const QStringList& names, QStyle::StandardPixmap fallback);

private:
    QMimeDatabase m_types;
    /// By the best name and whether it is a link.
    QHash<std::pair<QString, bool>, QIcon> m_icons;
};

} // namespace LinuxDesktop
