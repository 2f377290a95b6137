#include "extension/actions/transfer/window/TransferWords.h"

#include "platform/linux/text/FileNameText.h"
#include "platform/linux/text/PluralCount.h"

#include <QCoreApplication>
#include <QLocale>

#include <cerrno>
#include <system_error>

namespace MenuExtension::Transfers::Words {

namespace {

using LinuxDesktop::pluralCount;

struct Transfer {
    Q_DECLARE_TR_FUNCTIONS(Transfer)
};

QString reason(int error)
{
    switch (error) {
    case EXDEV:
    case ELOOP:
        return Transfer::tr("a link leads out of the folders that Orvik Menu works in");
    case EROFS:
        return Transfer::tr("it can only be read");
    case 0:
        return Transfer::tr("it is not known why");
    default:
        return QString::fromStdString(std::generic_category().message(error));
    }
}

QString number(std::size_t count)
{
    return QLocale().toString(static_cast<qulonglong>(count));
}

} // namespace

QString name(const std::string& path)
{
    const std::string last = path.substr(path.rfind('/') + 1);
    return Transfer::tr("“%1”").arg(LinuxDesktop::fileNameText(last.empty() ? path : last));
}

QString items(const std::vector<std::string>& paths)
{
    return paths.size() == 1 ? name(paths.front())
                             : Transfer::tr("%1 items", nullptr, pluralCount(paths.size())).arg(number(paths.size()));
}

QString doing(bool isMove, const std::vector<std::string>& paths, const std::string& target)
{
    return (isMove ? Transfer::tr("Moving %1 to %2") : Transfer::tr("Copying %1 to %2"))
        .arg(items(paths), name(target));
}

QString done(bool isMove, const std::vector<std::string>& paths, const std::string& target, const Result& result)
{
    if (result.isInPart)
        return (isMove ? Transfer::tr("A part of %1 was moved to %2.")
                       : Transfer::tr("A part of %1 was copied to %2."))
            .arg(items(paths), name(target));
    if (result.done == paths.size() && paths.size() == 1)
        return (isMove ? Transfer::tr("%1 was moved to %2.") : Transfer::tr("%1 was copied to %2."))
            .arg(name(paths.front()), name(target));
    if (result.done == paths.size())
        return (isMove ? Transfer::tr("%1 items were moved to %2.", nullptr, pluralCount(paths.size()))
                       : Transfer::tr("%1 items were copied to %2.", nullptr, pluralCount(paths.size())))
            .arg(number(paths.size()), name(target));
    return (isMove ? Transfer::tr("%1 of %2 items were moved to %3.", nullptr, pluralCount(paths.size()))
                   : Transfer::tr("%1 of %2 items were copied to %3.", nullptr, pluralCount(paths.size())))
        .arg(number(result.done), number(paths.size()), name(target));
}

QString problem(bool isMove, const Problem& problem)
{
    using Kind = Problem::Kind;
    const QString item = name(problem.path);
    const QString why = reason(problem.error);
    switch (problem.kind) {
    case Kind::TargetUnusable:
        return Transfer::tr("Nothing can be put into %1: %2.").arg(item, why);
    case Kind::Full:
        return Transfer::tr("There is not enough room on the disk of %1.").arg(item);
    case Kind::SourceUnusable:
        return Transfer::tr("%1 cannot be read: %2.").arg(item, why);
    case Kind::AlreadyThere:
        return Transfer::tr("%1 is in this folder already.").arg(item);
    case Kind::IntoItself:
        return isMove ? Transfer::tr("%1 cannot be moved into itself.").arg(item)
                      : Transfer::tr("%1 cannot be copied into itself.").arg(item);
    case Kind::NameTooLong:
        return Transfer::tr("The name %1 is too long for the disk that it is to go to.").arg(item);
    case Kind::TooLarge:
        return Transfer::tr("%1 is too large for the disk that it is to go to.").arg(item);
    case Kind::CannotLeave:
        return Transfer::tr("%1 cannot be taken away from where it is. It can be copied.").arg(item);
    case Kind::IsDevice:
        return Transfer::tr("%1 is a device, which cannot be copied.").arg(item);
    case Kind::Changed:
        return Transfer::tr("%1 kept changing while it was copied. Try again.").arg(item);
    case Kind::NotTransferred:
        return isMove ? Transfer::tr("%1 could not be moved: %2.").arg(item, why)
                      : Transfer::tr("%1 could not be copied: %2.").arg(item, why);
    case Kind::WithoutAttributes:
        return Transfer::tr("%1 was copied without some of its extended attributes: the disk has no room for them.")
            .arg(item);
    case Kind::NotRemoved:
        return problem.error == EBUSY
                   ? Transfer::tr(
                         "%1 has changed meanwhile, or a part of it could not be copied. What was not moved is still "
                         "where it was.")
                         .arg(item)
                   : Transfer::tr("%1 was copied, but not all of it could be removed from where it was: %2.")
                         .arg(item, why);
    case Kind::NotUndone:
        if (problem.error == ECANCELED)
            return Transfer::tr("%1 was not put back.").arg(item);
        return problem.error == 0
                   ? Transfer::tr("%1 could not be put back, since it is not where it was put.").arg(item)
                   : Transfer::tr("%1 could not be put back: %2.").arg(item, why);
    case Kind::NotTrashed:
        return Transfer::tr("%1 could not be put into the trash: %2")
            .arg(item, QString::fromStdString(problem.words));
    }
    return {};
}

QStringList problems(bool isMove, const Problems& problems)
{
    QStringList sentences;
    for (const Problem& one : problems.kept())
        sentences << problem(isMove, one);
    if (const std::size_t more = problems.count() - problems.kept().size(); more == 1)
        sentences << Transfer::tr("There was 1 more like these.");
    else if (more > 0)
        sentences << Transfer::tr("There were %1 more like these.", nullptr, pluralCount(more)).arg(number(more));
    return sentences;
}

} // namespace MenuExtension::Transfers::Words
