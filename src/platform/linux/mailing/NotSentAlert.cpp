#include "platform/linux/mailing/NotSentAlert.h"

#include "platform/linux/mailing/MailText.h"
#include "platform/linux/scenes/AlertDialog.h"
#include "platform/linux/system/TemporaryFolders.h"

#include <QStringList>

namespace LinuxDesktop::NotSentAlert {

namespace {

QString leftOutText(const AttachingFailure& failure)
{
    QStringList lines;
    lines << (failure.leftOutCount == 1
                  ? QStringLiteral("One item in it cannot be packed:")
                  : QStringLiteral("%1 items in it cannot be packed:").arg(failure.leftOutCount));
    for (const auto& item : failure.leftOut)
        lines << QStringLiteral("%1: %2").arg(MailText::quoted(item.path), QString::fromStdString(item.reason));
    if (const auto more = failure.leftOutCount - failure.leftOut.size(); more > 0)
        lines << QStringLiteral("and %1 more").arg(more);
    return lines.join(u'\n');
}

QString textOf(const AttachingFailure& failure)
{
    const QString reason = QString::fromStdString(failure.reason);
    const QString place = MailText::quoted(TemporaryFolders::place());
    switch (failure.kind) {
    case AttachingFailure::Kind::Cancelled:
        break;
    case AttachingFailure::Kind::Unreadable:
        return QStringLiteral("It cannot be read: %1").arg(reason);
    case AttachingFailure::Kind::Incomplete:
        return leftOutText(failure);
    case AttachingFailure::Kind::DiskFull:
        return QStringLiteral("The disk is full: there is too little room left in %1 to prepare it.").arg(place);
    case AttachingFailure::Kind::Unwritable:
        return QStringLiteral("It cannot be prepared in %1: %2").arg(place, reason);
    }
    return {};
}

void show(const std::vector<std::string>& items, const QString& why)
{
    auto* alert = new AlertDialog;
    alert->setWindowTitle(MailText::windowTitle);
    alert->setMessage(QStringLiteral("%1 was not sent.").arg(MailText::names(items)));
    alert->setInformation(why);
    alert->addButton(QStringLiteral("OK"));
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
    show(items, QStringLiteral("No mail program could be opened with it. Check which mail program is set as the "
                               "default, then send it again."));
}

} // namespace LinuxDesktop::NotSentAlert
