#pragma once

#include "platform/linux/chooser/FolderListing.h"

#include <QHash>
#include <QIcon>
#include <QMimeDatabase>
#include <QString>
#include <QStringList>

namespace LinuxDesktop {

/// Icons of files by their kind and name alone; no file is opened. Main thread.
class FileIcons {
public:
    /// Names in icon themes, best first.
    [[nodiscard]] QStringList iconNames(FileEntry::Kind kind, const QString& name) const;
    [[nodiscard]] QIcon iconFor(const FileEntry& entry, const QString& name);

private:
    QMimeDatabase m_types;
    QHash<QString, QIcon> m_byName;
};

} // namespace LinuxDesktop
