#include "extension/actions/support/Action.h"
#include "extension/actions/support/FileManager.h"
#include "extension/actions/support/Programs.h"
#include "extension/protocol/Words.h"
#include "platform/URL.h"

#include <cerrno>

namespace MenuExtension {

Outcome perform(const Request& request)
{
    const OpenedFolder folder = openFolderOf(request);
    const std::string shown = Words::name(folder.path);
    if (!folder.descriptor)
        return Outcome::failed("No window can be opened on " + shown + ": " + Words::reason(errno) + '.');
    switch (FileManager::showFolder(folder.path, request.caller)) {
    case FileManager::Shown::Yes:
        return Outcome::done();
    case FileManager::Shown::Late:
        return Outcome::failed("The file manager does not answer, so there may be no window on " + shown + '.');
    case FileManager::Shown::Nobody:
        break;
    }
    if (Programs::start({"xdg-open", NS::URL::fileURLWithPath(folder.path).absoluteString()}))
        return Outcome::done();
    return Outcome::failed("No file manager was found to open a window on " + shown + '.');
}

} // namespace MenuExtension
