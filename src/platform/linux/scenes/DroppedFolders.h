#pragma once

#include "platform/URL.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

namespace LinuxDesktop {

/// Why a path may not be used, in words; empty when it may.
using PathRefusal = std::function<QString(const std::string& path)>;

/// What another program lets go over one of ours.
struct DroppedFolders {
    /// Folders of this computer that may be used, in the order in which they came.
    std::vector<NS::URL> folders;
    /// A sentence for each item that is none.
    QStringList refusals;
};

/// Looks at each item of a list of addresses (text/uri-list).
[[nodiscard]] DroppedFolders droppedFolders(const QByteArray& addresses, const PathRefusal& refusal);

} // namespace LinuxDesktop
