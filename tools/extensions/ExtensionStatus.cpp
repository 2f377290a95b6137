#include "extensions/ExtensionStatus.h"

#include <QCoreApplication>
#include <QStringList>

namespace ExtensionsTool {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ExtensionStatus)
};

QString without(const ExtensionStatus& status)
{
    const QString words = Texts::tr("There is no session bus, so it can neither run nor be switched.");
    return status.startsAtLogIn ? words + u' ' + Texts::tr("It is set to start at log-in.") : words;
}

/// Half on, half off.
QString halfway(const ExtensionStatus& status)
{
    return status.runs ? Texts::tr("It is running, but it is not set to start at log-in.")
                       : Texts::tr("It is set to start at log-in, but it is not running.");
}

} // namespace

bool isOn(const ExtensionStatus& status)
{
    return status.startsAtLogIn && status.runs;
}

bool needsAttention(const ExtensionStatus& status)
{
    if (status.activity != ExtensionStatus::Activity::None)
        return false;
    return !status.hasBus || !status.trouble.isEmpty() || status.startsAtLogIn != status.runs;
}

QString inWords(const ExtensionStatus& status)
{
    if (status.activity == ExtensionStatus::Activity::Starting)
        return Texts::tr("Starting…");
    if (status.activity == ExtensionStatus::Activity::Stopping)
        return Texts::tr("Ending…");

    QStringList sentences;
    if (!status.trouble.isEmpty())
        sentences.append(status.trouble);
    if (!status.hasBus)
        sentences.append(without(status));
    else if (status.startsAtLogIn != status.runs)
        sentences.append(halfway(status));
    else if (sentences.isEmpty())
        sentences.append(isOn(status) ? Texts::tr("It is running, and it starts at log-in.")
                                      : Texts::tr("It is switched off."));
    return sentences.join(u' ');
}

} // namespace ExtensionsTool
