#include "app/UtilityKitWindow.h"

#include "registry/ControllerRegistry.h"

void UtilityKitWindow::windowDidLoad()
{
    NS::WindowController::windowDidLoad();
    window->setContentViewController(m_registry.controller<NS::ViewController>(ControllerIdentifier::utilityKitvc));
}
