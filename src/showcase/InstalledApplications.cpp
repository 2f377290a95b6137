#include "showcase/InstalledApplications.h"

#include "platform/Platform.h"
#include "showcase/ShowcaseCatalogue.h"

namespace {

std::array<bool, showcaseCatalogue.size()> installed{};

} // namespace

void checkInstalledApplications()
{
    for (std::size_t index = 0; index < showcaseCatalogue.size(); ++index)
        installed[index] = NS::platform().fileExistsAtPath(showcaseCatalogue[index].installedPath);
}

bool isApplicationInstalled(int number)
{
    return installed.at(static_cast<std::size_t>(number - 1));
}
