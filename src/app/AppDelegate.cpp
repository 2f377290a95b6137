#include "app/AppDelegate.h"

#include "app/mainStartWindow.h"
#include "app/tabviewcontroller.h"
#include "mail/AttachToMail.h"
#include "platform/Platform.h"
#include "registry/ControllerRegistry.h"

namespace {

/// In seconds: the time that the mail composer has to take the item.
constexpr double quitDelayAfterHandOff = 20.0;

constexpr int aboutTab = 3;

} // namespace

void AppDelegate::connect(NS::Connections& connections)
{
    connections.action("menuItem_aboutCLicked:", [this](NS::Control& sender) { menuItem_aboutCLicked(sender); });
}

void AppDelegate::applicationWillFinishLaunching()
{
    switch (attachToMail()) {
    case AttachToMailOutcome::HandedOver:
        NS::platform().performAfterDelay([this] { QuitMainApp(); }, quitDelayAfterHandOff);
        return;
    case AttachToMailOutcome::Abandoned:
        NS::platform().sharedApplication().terminate();
        return;
    case AttachToMailOutcome::NoRequest:
        break;
    }
    if (!NS::platform().sharedApplication().setActivationPolicy(NS::ActivationPolicy::Regular))
        return;
    // The controller shows its window itself.
    static_cast<void>(m_registry.controller<mainStartWindow>(ControllerIdentifier::mainStartWindow));
}

void AppDelegate::applicationShouldHandleReopen_hasVisibleWindows(bool)
{
    m_registry.controller<mainStartWindow>(ControllerIdentifier::mainStartWindow)->AttachFileToMail();
}

void AppDelegate::QuitMainApp()
{
    NS::platform().sharedApplication().terminate();
}

void AppDelegate::menuItem_aboutCLicked(NS::Control&)
{
    m_registry.controller<tabviewcontroller>(ControllerIdentifier::tabviewcontroller)
        ->tabView->selectTabViewItemAtIndex(aboutTab);
}
