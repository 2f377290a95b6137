#include "Texts.h"

#include <QCoreApplication>

#include <cerrno>
#include <system_error>

namespace MenuExtension::Resizing {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ResizePhotos)
};

QString reason(int error)
{
    if (error == EXDEV || error == ELOOP)
        return Texts::tr("a link leads out of the folders that Orvik Menu works in");
    return QString::fromLocal8Bit(std::generic_category().message(error).c_str());
}

} // namespace

QString sentence(const QString& name, const std::string& end)
{
    //: A photo's name, and what is wrong with it: “Harbour.jpg cannot be resized: it is damaged.”
    return Texts::tr("%1 %2.").arg(name, QString::fromStdString(end));
}

QString inWords(const QString& name, const Outcome& outcome)
{
    using Kind = Outcome::Kind;
    switch (outcome.kind) {
    case Kind::Done:
    case Kind::SmallAlready:
    case Kind::Cancelled:
        return {};
    case Kind::CannotBeOpened:
        return Texts::tr("%1 cannot be opened: %2.").arg(name, reason(outcome.error));
    case Kind::CannotBeSaved:
        return Texts::tr("%1 cannot be saved: %2.").arg(name, reason(outcome.error));
    case Kind::CannotBeTrashed:
        return Texts::tr("%1 stays as it is, since it cannot be moved to the trash: %2")
            .arg(name, QString::fromStdString(outcome.words));
    case Kind::OnlyInTrash:
        return Texts::tr("%1 is in the trash, but the smaller one could not take its place: %2.")
            .arg(name, reason(outcome.error));
    case Kind::Refused:
        return sentence(name, outcome.words);
    case Kind::TakesTooLong:
        return Texts::tr("%1 takes too long to resize.").arg(name);
    case Kind::TakesTooMuch:
        return Texts::tr("%1 cannot be resized: it takes too much memory, or is damaged.").arg(name);
    case Kind::WorkerIsMissing:
        return Texts::tr("%1 cannot be resized: the part that reads pictures does not start. "
                         "Install the package libvips42.")
            .arg(name);
    case Kind::Changed:
        return Texts::tr("%1 stays as it is: another program has changed it meanwhile.").arg(name);
    }
    return {};
}

} // namespace MenuExtension::Resizing
