#include "registry/ControllerRegistry.h"

#include "platform/Platform.h"

NS::Storyboard& ControllerRegistry::storyboard()
{
    if (!m_storyboard)
        m_storyboard = NS::platform().storyboardWithName_bundle("Main", NS::platform().mainBundle());
    return *m_storyboard;
}

std::shared_ptr<NS::Controller> ControllerRegistry::sharedController(std::string_view identifier)
{
    const auto [entry, isNew] = m_controllers.try_emplace(std::string(identifier));
    if (!isNew) {
        if (!entry->second)
            NS::fatalError("the scene \"" + entry->first + "\" asks for itself while it is made");
        return entry->second;
    }
    entry->second = storyboard().instantiateControllerWithIdentifier(identifier);
    if (!entry->second)
        NS::fatalError("the storyboard has no scene \"" + entry->first + "\"");
    return entry->second;
}
