#include "platform/linux/mailing/NotSentAlert.h"

#include "platform/LocalizedString.h"
#include "platform/linux/mailing/MailText.h"
#include "platform/linux/scenes/AlertDialog.h"
#include "platform/linux/system/TemporaryFolders.h"
#include "platform/linux/text/PluralCount.h"

#include <QCoreApplication>
#include <QStringList>

namespace LinuxDesktop::NotSentAlert {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(NotSentAlert)
};

QString inWords(const std::string& reason)
{
    return QString::fromStdString(NS::LocalizedString("Attachments", reason));
}

QString leftOutText(const AttachingFailure& failure)
{
    QStringList lines;
    lines << (failure.leftOutCount == 1
                  ? Texts::tr("One item in it cannot be packed:")
                  : Texts::tr("%1 items in it cannot be packed:", nullptr, pluralCount(failure.leftOutCount))
                        .arg(failure.leftOutCount));
    for (const auto& item : failure.leftOut)
        lines << Texts::tr("%1: %2").arg(MailText::quoted(item.path), inWords(item.reason));
    if (const auto more = failure.leftOutCount - failure.leftOut.size(); more > 0)
        lines << Texts::tr("and %1 more", nullptr, pluralCount(more)).arg(more);
    return lines.join(u'\n');
}

QString textOf(const AttachingFailure& failure)
{
    const QString reason = inWords(failure.reason);
    const QString place = MailText::quoted(TemporaryFolders::place());
    switch (failure.kind) {
    case AttachingFailure::Kind::Cancelled:
        break;
    case AttachingFailure::Kind::Unreadable:
        return Texts::tr("It cannot be read: %1").arg(reason);
    case AttachingFailure::Kind::Incomplete:
        return leftOutText(failure);
    case AttachingFailure::Kind::DiskFull:
        return Texts::tr("The disk is full: there is too little room left in %1 to prepare it.").arg(place);
    case AttachingFailure::Kind::Unwritable:
        return Texts::tr("It cannot be prepared in %1: %2").arg(place, reason);
    }
    return {};
}

void show(const std::vector<std::string>& items, const QString& why)
{
    auto* alert = new AlertDialog;
    alert->setWindowTitle(MailText::windowTitle);
    alert->setMessage(Texts::tr("%1 was not sent.").arg(MailText::names(items)));
    alert->setInformation(why);
    alert->addButton(Texts::tr("OK"));
    QObject::connect(alert, &QDialog::finished, alert, &QObject::deleteLater);
    alert->show();
    alert->raise();
    alert->activateWindow();
}

} // namespace

void show(const std::vector<std::string>& items, const AttachingFailure& failure)
{
    show(items, textOf(failure));
}

void showNoMailProgram(const std::vector<std::string>& items)
{
    show(items, Texts::tr("No mail program could be opened with it. Check which mail program is set as the "
                          "default, then send it again."));
}

} // namespace LinuxDesktop::NotSentAlert
