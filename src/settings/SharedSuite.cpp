#include "settings/SharedSuite.h"

#include "platform/Platform.h"
#include "settings/Deployment.h"

std::shared_ptr<NS::UserDefaults> openSharedSuite()
{
    return NS::platform().userDefaultsWithSuiteName(Deployment::suiteName);
}
