#include "platform/linux/chooser/ModifiedText.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

/// Hours and minutes. The C locale's short time has seconds.
QString clockText(const QTime& time, const QLocale& locale)
{
    QString format = locale.timeFormat(QLocale::ShortFormat);
    return locale.toString(time, format.remove(u":ss"_s));
}

/// The locale's long date without the name of the day of the week and what joins that to it, and with a short month.
QString dayText(const QDate& day, const QLocale& locale)
{
    static const QRegularExpression weekday(u"^dddd?[,،、]?\\s*|[,،、]?\\s*[(]?dddd?[)]?$"_s);
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(weekday).replace(u"MMMM"_s, u"MMM"_s);
    return locale.toString(day, format);
}

} // namespace

QString modifiedText(const QDateTime& modified, const QDateTime& now, const QLocale& locale)
{
    const QString clock = clockText(modified.time(), locale);
    switch (modified.daysTo(now)) {
    case 0:
        return QCoreApplication::translate("ModifiedText", "Today %1").arg(clock);
    case 1:
        return QCoreApplication::translate("ModifiedText", "Yesterday %1").arg(clock);
    default:
        return dayText(modified.date(), locale);
    }
}

QString exactModifiedText(const QDateTime& modified, const QLocale& locale)
{
    return u"%1 %2"_s.arg(locale.toString(modified.date(), QLocale::LongFormat), clockText(modified.time(), locale));
}

} // namespace LinuxDesktop
