#include "DesktopWallpaper.h"
#include "WallpaperPortal.h"
#include "extension/actions/support/Action.h"
#include "extension/actions/support/Picture.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"

#include <cerrno>

namespace MenuExtension {

using NS::LocalizedString;
using NS::stringWithFormat;

Outcome perform(const Request& request)
{
    const std::string& path = request.paths.front();
    const std::string shown = Words::name(path);
    const auto picture = openFile(request, path);
    if (!picture)
        return Outcome::failed(stringWithFormat(LocalizedString("SetAsWallpaper", "%1 cannot be read: %2."),
                                                {shown, Words::reason(errno)}));
    switch (WallpaperPortal::set(picture)) {
    case WallpaperPortal::Answer::Set:
    case WallpaperPortal::Answer::Cancelled:
        return Outcome::done();
    case WallpaperPortal::Answer::Failed:
        return Outcome::failed(stringWithFormat(
            LocalizedString("SetAsWallpaper", "The desktop did not take %1 as its wallpaper."), {shown}));
    case WallpaperPortal::Answer::Nobody:
        break;
    }
    if (DesktopWallpaper::set(path))
        return Outcome::done();
    return Outcome::failed(stringWithFormat(
        LocalizedString("SetAsWallpaper",
                        "%1 cannot be set as the wallpaper: Orvik Menu does not know how this desktop sets it."),
        {shown}));
}

} // namespace MenuExtension
