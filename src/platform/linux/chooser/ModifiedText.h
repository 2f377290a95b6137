#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace LinuxDesktop {

/// When something was changed, as people say it at the time `now`: "Today 20:06", "Yesterday 20:06", else the day, as
/// in "22 Nov 2026"; by the locale's order, names and clock. Any thread.
[[nodiscard]] QString modifiedText(const QDateTime& modified, const QDateTime& now, const QLocale& locale);
/// The same in full, for those who want to know exactly.
[[nodiscard]] QString exactModifiedText(const QDateTime& modified, const QLocale& locale);

} // namespace LinuxDesktop
