#pragma once

#include <QIcon>
#include <QString>

namespace LinuxDesktop {

/// The folder of the installed files, for programs that users start from the folder `programs`.
[[nodiscard]] QString installedResources(const QString& programs);
/// The product's icon. The windows have it already.
[[nodiscard]] QIcon productIcon(const QString& programs);

} // namespace LinuxDesktop
