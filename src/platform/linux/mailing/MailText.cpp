#include "platform/linux/mailing/MailText.h"

#include "platform/linux/text/FileNameText.h"
#include "platform/linux/text/PluralCount.h"

#include <QCoreApplication>

namespace LinuxDesktop::MailText {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(MailText)
};

constexpr qsizetype longestName = 40;

} // namespace

QString quoted(std::string_view name)
{
    QString text = fileNameText(name);
    if (const qsizetype length = text.size(); length > longestName) {
        const qsizetype half = longestName / 2;
        qsizetype start = half;
        qsizetype end = length - half;
        // No character is cut in two.
        start -= text.at(start - 1).isHighSurrogate() ? 1 : 0;
        end += text.at(end).isLowSurrogate() ? 1 : 0;
        text = text.first(start) + u'…' + text.sliced(end);
    }
    return Texts::tr("“%1”").arg(text);
}

QString names(const std::vector<std::string>& items)
{
    const std::string_view first = items.front();
    const QString name = quoted(first == "/" ? first : first.substr(first.rfind('/') + 1));
    return items.size() == 1
               ? name
               : Texts::tr("%1 and %2 more", nullptr, pluralCount(items.size() - 1)).arg(name).arg(items.size() - 1);
}

} // namespace LinuxDesktop::MailText
