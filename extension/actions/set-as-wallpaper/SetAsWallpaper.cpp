#include "DesktopWallpaper.h"
#include "WallpaperPortal.h"
#include "extension/actions/support/Action.h"
#include "extension/actions/support/Picture.h"
#include "extension/protocol/Words.h"

#include <cerrno>

namespace MenuExtension {

Outcome perform(const Request& request)
{
    const std::string& path = request.paths.front();
    const std::string shown = Words::name(path);
    const auto picture = openFile(request, path);
    if (!picture)
        return Outcome::failed(shown + " cannot be read: " + Words::reason(errno) + '.');
    switch (WallpaperPortal::set(picture)) {
    case WallpaperPortal::Answer::Set:
    case WallpaperPortal::Answer::Cancelled:
        return Outcome::done();
    case WallpaperPortal::Answer::Failed:
        return Outcome::failed("The desktop did not take " + shown + " as its wallpaper.");
    case WallpaperPortal::Answer::Nobody:
        break;
    }
    if (DesktopWallpaper::set(path))
        return Outcome::done();
    return Outcome::failed(shown +
                           " cannot be set as the wallpaper: Orvik Menu does not know how this desktop sets it.");
}

} // namespace MenuExtension
