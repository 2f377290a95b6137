#include "extension/actions/duplicates/DuplicatesWindow.h"
#include "extension/actions/files/Trash.h"
#include "extension/actions/find-duplicate-files/ChoicesRow.h"
#include "extension/actions/find-duplicate-files/DuplicateFileFinder.h"
#include "extension/actions/support/Action.h"
#include "extension/actions/window/PerformInWindow.h"
#include "platform/LocalizedString.h"
#include "platform/linux/text/PluralCount.h"

#include <QCoreApplication>
#include <QLocale>

#include <fcntl.h>

namespace MenuExtension {

using namespace Duplicates;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FindDuplicateFiles)
};

std::optional<std::string> trash(const std::string& path)
{
    const auto trouble = moveToTrash(path);
    return trouble ? std::optional(NS::stringWithFormat(
                         NS::LocalizedString("Duplicates", "could not be moved to the trash: %1"), {*trouble}))
                   : std::nullopt;
}

Presentation presentationOf(DuplicateFileFinder& finder)
{
    Presentation presentation;
    presentation.title = Texts::tr("Duplicate Files");
    presentation.nothingFound = Texts::tr("No two files hold the same.");
    presentation.counted = [](qulonglong count) {
        return count == 1
                   ? Texts::tr("1 file")
                   : Texts::tr("%1 files", nullptr, LinuxDesktop::pluralCount(count)).arg(QLocale().toString(count));
    };
    presentation.makeControl = [&finder](QWidget* parent, const std::function<void()>& searchAgain) -> QWidget* {
        const auto change = [&finder, searchAgain](Choices choices) {
            finder.setChoices(choices);
            searchAgain();
        };
        return new ChoicesRow({}, change, parent);
    };
    presentation.removal = {.check = haveEqualBytes, .trash = trash};
    return presentation;
}

} // namespace

Outcome perform(const Request& request)
{
    return performInWindow([&request] {
        // The folder whose background was clicked may have been reached by a link; an item that is one is not
        // followed.
        const auto open = [&request](const std::string& path, int flags) {
            return openItem(request, path, request.background ? flags & ~O_NOFOLLOW : flags);
        };
        auto finder = std::make_unique<DuplicateFileFinder>(request.paths, open);
        Presentation presentation = presentationOf(*finder);
        return std::make_unique<DuplicatesWindow>(std::move(finder), std::move(presentation));
    });
}

} // namespace MenuExtension
