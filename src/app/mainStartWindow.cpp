#include "app/mainStartWindow.h"

#include "app/UtilityKitWindow.h"
#include "app/tabviewcontroller.h"
#include "mail/AttachToMail.h"
#include "onboarding/firstRunvc.h"
#include "platform/Platform.h"
#include "registry/ControllerRegistry.h"
#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/Settings.h"

void mainStartWindow::windowDidLoad()
{
    NS::WindowController::windowDidLoad();
    window->setContentViewController(contentViewController());
    showWindow();

    NS::DistributedNotificationCenter& center = NS::platform().defaultCenter();
    center.addObserver_name_object([this] { AttachFileToMail(); }, NotificationName::AttachFileToMail,
                                   Deployment::extensionIdentifier);
    center.addObserver_name_object([this] { showUtilityKit(); }, NotificationName::ShowUtilityKit,
                                   Deployment::extensionIdentifier);
}

std::shared_ptr<NS::ViewController> mainStartWindow::contentViewController()
{
    // Any stored value counts: presence alone says that the first run is over.
    if (NS::platform().standardUserDefaults().objectForKey(Settings::firstRun.key))
        return m_registry.controller<tabviewcontroller>(ControllerIdentifier::tabviewcontroller);
    return m_registry.controller<firstRunvc>(ControllerIdentifier::firstRunvc);
}

void mainStartWindow::windowWillClose()
{
    NS::platform().sharedApplication().terminate();
}

void mainStartWindow::showUtilityKit()
{
    m_registry.controller<UtilityKitWindow>(ControllerIdentifier::UtilityKitWindow)->showWindow();
    NS::platform().sharedApplication().activateIgnoringOtherApps(true);
}

void mainStartWindow::AttachFileToMail()
{
    attachToMail();
}
