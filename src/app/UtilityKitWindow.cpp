#include "app/UtilityKitWindow.h"

#include "registry/ControllerRegistry.h"
#include "showcase/utilityKitvc.h"

void UtilityKitWindow::windowDidLoad()
{
    NS::WindowController::windowDidLoad();
    window->setContentViewController(m_registry.controller<utilityKitvc>(ControllerIdentifier::utilityKitvc));
}
