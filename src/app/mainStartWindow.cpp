#include "app/mainStartWindow.h"

#include "app/UtilityKitWindow.h"
#include "app/tabviewcontroller.h"
#include "mail/AttachToMail.h"
#include "platform/Platform.h"
#include "registry/ControllerRegistry.h"
#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/SettingsKeys.h"

void mainStartWindow::windowDidLoad()
{
    NS::WindowController::windowDidLoad();
    window->setContentViewController(contentViewController());
    showWindow();

    NS::DistributedNotificationCenter& center = NS::platform().defaultCenter();
    center.addObserver_name_object([this] { AttachFileToMail(); }, NotificationName::AttachFileToMail,
                                   Deployment::extensionIdentifier);
    // A build without the showcase has nothing to show.
    if (m_registry.offers(ControllerIdentifier::UtilityKitWindow))
        center.addObserver_name_object([this] { showUtilityKit(); }, NotificationName::ShowUtilityKit,
                                       Deployment::extensionIdentifier);
}

std::shared_ptr<NS::ViewController> mainStartWindow::contentViewController()
{
    // Any stored value counts: presence alone says that the first run is over. A build without the first-run
    // screen goes to the tabs at once.
    const bool onboardingDone = NS::platform().standardUserDefaults().objectForKey(SettingsKey::firstRun).has_value();
    if (!onboardingDone && m_registry.offers(ControllerIdentifier::firstRunvc))
        return m_registry.controller<NS::ViewController>(ControllerIdentifier::firstRunvc);
    return m_registry.controller<tabviewcontroller>(ControllerIdentifier::tabviewcontroller);
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
