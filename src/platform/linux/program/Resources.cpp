#include "platform/linux/program/Resources.h"

#include <QDir>

namespace LinuxDesktop {

QString installedResources(const QString& programs)
{
    return QDir::cleanPath(programs + QStringLiteral("/" ORVIK_RESOURCES));
}

QIcon productIcon(const QString& programs)
{
    return QIcon(installedResources(programs) + QStringLiteral("/Assets/orvik-menu.svg"));
}

} // namespace LinuxDesktop
