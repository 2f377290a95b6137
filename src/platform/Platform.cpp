#include "platform/Platform.h"

#include "platform/FatalError.h"

namespace NS {

namespace {

Platform* installed = nullptr;

} // namespace

Platform& platform()
{
    if (!installed)
        fatalError("no platform is installed");
    return *installed;
}

void installPlatform(Platform* platform)
{
    installed = platform;
}

} // namespace NS
