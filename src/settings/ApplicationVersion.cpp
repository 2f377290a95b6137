#include "settings/ApplicationVersion.h"

#include "platform/FatalError.h"
#include "platform/Platform.h"

std::string applicationVersion()
{
    const auto& information = NS::platform().mainBundle().infoDictionary();
    if (!information)
        NS::fatalError("the application has no information dictionary");
    const auto entry = information->find("CFBundleShortVersionString");
    if (entry == information->end() || !entry->second.string())
        NS::fatalError("the information dictionary has no CFBundleShortVersionString");
    return *entry->second.string();
}
