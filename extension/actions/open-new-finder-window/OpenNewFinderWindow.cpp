#include "extension/actions/support/Action.h"
#include "extension/actions/support/FileManager.h"
#include "extension/actions/support/Programs.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"
#include "platform/URL.h"

#include <cerrno>

namespace MenuExtension {

using NS::LocalizedString;
using NS::stringWithFormat;

Outcome perform(const Request& request)
{
    const OpenedFolder folder = openFolderOf(request);
    const std::string shown = Words::name(folder.path);
    if (!folder.descriptor)
        return Outcome::failed(
            stringWithFormat(LocalizedString("OpenNewFinderWindow", "No window can be opened on %1: %2."),
                             {shown, Words::reason(errno)}));
    switch (FileManager::showFolder(folder.path, request.caller)) {
    case FileManager::Shown::Yes:
        return Outcome::done();
    case FileManager::Shown::Late:
        return Outcome::failed(
            stringWithFormat(LocalizedString("OpenNewFinderWindow",
                                             "The file manager does not answer, so there may be no window on %1."),
                             {shown}));
    case FileManager::Shown::Nobody:
        break;
    }
    if (Programs::start({"xdg-open", NS::URL::fileURLWithPath(folder.path).absoluteString()}))
        return Outcome::done();
    return Outcome::failed(stringWithFormat(
        LocalizedString("OpenNewFinderWindow", "No file manager was found to open a window on %1."), {shown}));
}

} // namespace MenuExtension
