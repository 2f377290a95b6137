#include "TroubleWords.h"

#include <QCoreApplication>

#include <system_error>

namespace MenuExtension::Exif {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(TroubleWords)
};

QString reason(const Trouble& trouble)
{
    if (trouble.error == EXDEV || trouble.error == ELOOP)
        return Texts::tr("a link leads out of the folders that Orvik Menu works in");
    return QString::fromLocal8Bit(std::generic_category().message(trouble.error).c_str());
}

/// A sentence of ExifTool's, or ours where it says nothing.
QString words(const Trouble& trouble)
{
    return trouble.words.empty() ? Texts::tr("ExifTool does not say why") : QString::fromStdString(trouble.words);
}

} // namespace

QString inWords(const Trouble& trouble)
{
    using Kind = Trouble::Kind;
    switch (trouble.kind) {
    case Kind::None:
        return {};
    case Kind::Cancelled:
        return Texts::tr("It was not done any more.");
    case Kind::CannotBeOpened:
        return Texts::tr("It cannot be opened: %1.").arg(reason(trouble));
    case Kind::CannotBeSaved:
        return Texts::tr("It cannot be saved: %1.").arg(reason(trouble));
    case Kind::OriginalCannotBeKept:
        return Texts::tr("The original cannot be kept beside it: %1. Nothing was changed.").arg(reason(trouble));
    case Kind::NoExifTool:
        return Texts::tr("The program ExifTool is missing. Install the package libimage-exiftool-perl.");
    case Kind::TakesTooLong:
        return Texts::tr("Reading it takes too long.");
    case Kind::TooMuchData:
        return Texts::tr("It says more than can be shown.");
    case Kind::ExifToolCrashed:
        return Texts::tr("ExifTool failed on it. The file may be damaged, or too large.");
    case Kind::CannotBeRead:
        return Texts::tr("It cannot be read: %1.").arg(words(trouble));
    case Kind::CannotBeWritten:
        return Texts::tr("It cannot be changed: %1.").arg(words(trouble));
    case Kind::Changed:
        return Texts::tr("Another program has changed it meanwhile. Look at it again and try again.");
    case Kind::CannotBeChecked:
        return Texts::tr("Files of this kind, or damaged ones, are not changed, since it cannot be checked that the "
                         "picture stays the same.");
    case Kind::PictureDiffers:
        return Texts::tr("The picture would not have stayed the same. Nothing was changed.");
    case Kind::EditsNotKept:
        return Texts::tr("It does not hold all that was to be written. Nothing was changed.");
    case Kind::NoDate:
        return Texts::tr("It has no date that could be moved.");
    case Kind::HoldsMore:
        return Texts::tr(
            "It was saved, but it holds more than the picture, such as a second one or a film, which may "
            "hold such data too.");
    case Kind::OrientationInPicture:
        return Texts::tr("Its orientation is part of the picture and cannot be changed here.");
    }
    return {};
}

} // namespace MenuExtension::Exif
