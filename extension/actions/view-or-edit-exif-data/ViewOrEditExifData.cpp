#include "ExifWindow.h"
#include "SavePhoto.h"
#include "extension/actions/photos/ExifTool.h"
#include "extension/actions/placing/OpenedFile.h"
#include "extension/actions/support/Action.h"
#include "extension/actions/window/PerformInWindow.h"
#include "platform/LocalizedString.h"
#include "platform/linux/system/TemporaryFolders.h"

#include <memory>

namespace MenuExtension {

Outcome perform(const Request& request)
{
    if (!Exif::ExifTool::isInstalled())
        return Outcome::failed(NS::LocalizedString(
            "TroubleWords", "The program ExifTool is missing. Install the package libimage-exiftool-perl."));
    LinuxDesktop::TemporaryFolders::removeLeftovers();
    if (const auto first = openWithFolder(request, request.paths.front()))
        Exif::removeLeftovers(first->folder);
    return performInWindow([&request] { return std::make_unique<Exif::ExifWindow>(request); });
}

} // namespace MenuExtension
