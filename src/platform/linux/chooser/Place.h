#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace LinuxDesktop {

/// A folder that people go to often.
struct Place {
    QString title;
    /// Names in icon themes, best first.
    QStringList icons;
    std::string folder; // absolute, in bytes
};

} // namespace LinuxDesktop
